#include <gtest/gtest.h>

#include "platform/simulated/DeskFileError.h"

namespace vantrel::simulated {
namespace {

TEST(DeskFileError, NamesFilePlaceAndReason) {
    EXPECT_EQ((DeskFileError{"x.json", "displays[0]", "is wrong"}).line(), "x.json: displays[0]: is wrong");
}

TEST(DeskFileError, NamesNoPlaceWhenTheWholeFileIsMeant) {
    EXPECT_EQ((DeskFileError{"x.json", "", "Is a directory"}).line(), "x.json: Is a directory");
}

TEST(DeskFileError, StaysOnOneLineWhateverTheFileIsCalled) {
    EXPECT_EQ((DeskFileError{"a\nb\x7F.json", "", "is wrong"}).line(), "a?b?.json: is wrong");
}

}  // namespace
}  // namespace vantrel::simulated
