#include <QApplication>
#include <QIcon>
#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/qt/QtApplication.h"

namespace vantrel::qt {
namespace {

TEST(QtApplication, EndsItsLoopWhenTheSystemAsksForIt) {
    bool hasEnded = false;
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, [&] { hasEnded = true; });
    std::raise(SIGTERM);
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(hasEnded);
    QObject::disconnect(qApp, &QCoreApplication::aboutToQuit, nullptr, nullptr);
}

TEST(QtApplication, LivesOnWithoutWindows) { EXPECT_FALSE(QApplication::quitOnLastWindowClosed()); }

TEST(QtApplication, IsKnownToTheDesktop) {
    EXPECT_EQ(QApplication::desktopFileName(), "org.vantrel.Vantrel");
    EXPECT_FALSE(QApplication::windowIcon().isNull());
}

}  // namespace
}  // namespace vantrel::qt
