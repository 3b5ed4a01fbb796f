// The stories that are the same on every platform; each platform's file brings its computer.
#pragma once

#include <gtest/gtest.h>
#include <tuple>

#include "support/DeskStory.h"

namespace vantrel {

class DimmingStory : public test::DeskStoryTest {};
class Idle : public test::DeskStoryTest {};
class OutputOffAndOnStory : public test::DeskStoryTest {};
class ReturnToMacStory : public test::DeskStoryTest {};
class SliderStory : public test::DeskStoryTest {};
// With the displays of the desk "stubborn".
class StubbornMonitorStory
    : public testing::TestWithParam<std::tuple<test::MakeStoryComputer, platform::DisplayID>> {};

}  // namespace vantrel
