#include <gtest/gtest.h>

#include "ddc/CapabilitiesText.h"

namespace vantrel::ddc {
namespace {

using namespace std::string_literals;

TEST(CapabilitiesText, LeavesNulBytesOut) { EXPECT_EQ(capabilitiesText("\0(v\0cp)\0\0"s), "(vcp)"); }

TEST(CapabilitiesText, ReplacesWhatIsNotUTF8) { EXPECT_EQ(capabilitiesText("a\xFFz"), "a\xEF\xBF\xBDz"); }

// A character may be cut in two by padding.
TEST(CapabilitiesText, LeavesNulBytesOutBeforeItReadsCharacters) {
    EXPECT_EQ(capabilitiesText("\xC3\0\xA9"s), "\xC3\xA9");
}

TEST(CapabilitiesText, IsEmptyWhenThereWereOnlyNulBytes) { EXPECT_EQ(capabilitiesText("\0\0"s), ""); }

}  // namespace
}  // namespace vantrel::ddc
