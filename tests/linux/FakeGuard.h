// A guard who comes when called, unless a test says otherwise. Main thread.
#pragma once

#include "platform/linux/OutputGuard.h"

namespace vantrel::linux {

class FakeGuard : public OutputGuard {
  public:
    bool comes = true;
    unsigned posts = 0;

    bool post() override {
        ++posts;
        return comes;
    }
};

}  // namespace vantrel::linux
