#include "scenarios/Stories.h"
#include "support/SimulatedStoryComputer.h"

namespace vantrel {
namespace {

const auto computer = testing::Values(&test::makeStoryComputer<test::SimulatedStoryComputer>);

INSTANTIATE_TEST_SUITE_P(Simulated, DimmingStory, computer);
INSTANTIATE_TEST_SUITE_P(Simulated, Idle, computer);
INSTANTIATE_TEST_SUITE_P(Simulated, OutputOffAndOnStory, computer);
INSTANTIATE_TEST_SUITE_P(Simulated, ReturnToMacStory, computer);
INSTANTIATE_TEST_SUITE_P(Simulated, SliderStory, computer);
INSTANTIATE_TEST_SUITE_P(Simulated, StubbornMonitorStory,
                         testing::Combine(computer, testing::Values(2U, 3U, 4U, 5U, 6U)));

}  // namespace
}  // namespace vantrel
