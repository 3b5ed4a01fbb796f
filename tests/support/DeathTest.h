// The base of death tests' fixtures: in a process with threads a death test
// must run in a fresh one. Name the fixture ...DeathTest, so that it runs first.
#pragma once

#include <gtest/gtest.h>

namespace vantrel::test {

class DeathTest : public testing::Test {
  protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

}  // namespace vantrel::test
