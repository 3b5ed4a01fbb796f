// Somebody who stays when the program ends or crashes, and who turns an output on again
// when no other one is lit any more. Main thread.
#pragma once

namespace vantrel::linux {

class OutputGuard {
  public:
    virtual ~OutputGuard() = default;
    // True once somebody is on guard; false when nobody can be had.
    virtual bool post() = 0;
};

}  // namespace vantrel::linux
