// The one QApplication of all tests, without a desktop.
#include <QCoreApplication>
#include <gtest/gtest.h>
#include <memory>

#include "ui/qt/QtApplication.h"

namespace vantrel::qt {
namespace {

class QtEnvironment : public testing::Environment {
  public:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QtApplication>(count_, arguments_);
    }
    void TearDown() override {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        application_.reset();
    }

  private:
    char name_[12] = "qt_tests";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    std::unique_ptr<QtApplication> application_;
};

[[maybe_unused]] testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace
}  // namespace vantrel::qt
