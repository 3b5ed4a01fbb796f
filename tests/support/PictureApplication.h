// Qt for a test that draws into files: one at a time, without a desktop.
#pragma once

#include <memory>

#include "ui/qt/QtApplication.h"

namespace vantrel::test {

class PictureApplication {
  public:
    PictureApplication() {
        qt::QtApplication::useNoDesktop();
        application_ = std::make_unique<qt::QtApplication>(count_, arguments_);
    }

  private:
    char name_[8] = "vantrel";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    std::unique_ptr<qt::QtApplication> application_;
};

}  // namespace vantrel::test
