#include "linux/LinuxStoryComputer.h"
#include "scenarios/Stories.h"

namespace vantrel {
namespace {

const auto computer = testing::Values(&test::makeStoryComputer<linux::LinuxStoryComputer>);

INSTANTIATE_TEST_SUITE_P(Linux, DimmingStory, computer);
INSTANTIATE_TEST_SUITE_P(Linux, Idle, computer);
INSTANTIATE_TEST_SUITE_P(Linux, OutputOffAndOnStory, computer);
INSTANTIATE_TEST_SUITE_P(Linux, ReturnToMacStory, computer);
INSTANTIATE_TEST_SUITE_P(Linux, SliderStory, computer);
INSTANTIATE_TEST_SUITE_P(Linux, StubbornMonitorStory,
                         testing::Combine(computer, testing::Values(2U, 3U, 4U, 5U, 6U)));

}  // namespace
}  // namespace vantrel
