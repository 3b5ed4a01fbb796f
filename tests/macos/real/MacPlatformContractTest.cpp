// The seam's contract on the Mac that the tests run on, with whatever is on its desk.
#include <gtest/gtest.h>

#include "platform/macos/MacPlatform.h"
#include "platform/macos/MacScheduler.h"
#include "runtime/RealScheduler.h"
#include "runtime/WakingScheduler.h"
#include "support/SeamContract.h"

namespace vantrel {
namespace {

class RealBench {
  public:
    platform::Platform& platform() { return platform_; }

  private:
    runtime::RealScheduler real_;
    macos::MacScheduler threads_{real_};
    runtime::WakingScheduler scheduler_{threads_};
    runtime::MainLoop loop_{scheduler_};
    macos::MacPlatform mac_{scheduler_, loop_};
    platform::Platform platform_ = mac_.platform();
};

using Benches = testing::Types<RealBench>;
INSTANTIATE_TYPED_TEST_SUITE_P(MacPlatform, SeamContract, Benches);

}  // namespace
}  // namespace vantrel
