#include <QAbstractEventDispatcher>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/ProgressItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

TEST(ProgressItem, TurnsOnlyWhileItCanBeSeen) {
    ViewBench bench(Node{.element = Progress{}}.key("progress"));
    const auto timers = [&] {
        return QAbstractEventDispatcher::instance()->registeredTimers(&bench.at("progress")).size();
    };
    EXPECT_EQ(timers(), 1);
    bench.window().hide();
    EXPECT_EQ(timers(), 0);
}

}  // namespace
}  // namespace vantrel::qt
