#include <gtest/gtest.h>

#include "platform/simulated/FileError.h"

namespace vantrel::simulated {
namespace {

TEST(FileError, NamesFilePlaceAndReason) {
    EXPECT_EQ((FileError{"x.json", "displays[0]", "is wrong"}).line(), "x.json: displays[0]: is wrong");
}

TEST(FileError, NamesNoPlaceWhenTheWholeFileIsMeant) {
    EXPECT_EQ((FileError{"x.json", "", "Is a directory"}).line(), "x.json: Is a directory");
}

TEST(FileError, StaysOnOneLineWhateverTheFileIsCalled) {
    EXPECT_EQ((FileError{"a\nb\x7F.json", "", "is wrong"}).line(), "a?b?.json: is wrong");
}

}  // namespace
}  // namespace vantrel::simulated
