#include <gtest/gtest.h>
#include <string>

#include "platform/AVServiceHandles.h"

namespace vantrel::platform {
namespace {

TEST(AVServiceHandles, LeadToTheirServices) {
    AVServiceHandles<std::string> handles;
    const void* alder = handles.add("Alder");
    const void* birch = handles.add("Birch");
    EXPECT_NE(alder, birch);
    EXPECT_EQ(handles.find(alder), "Alder");
    EXPECT_EQ(handles.find(birch), "Birch");
}

TEST(AVServiceHandles, AreAsManyAsWereNotReleased) {
    AVServiceHandles<int> handles;
    EXPECT_EQ(handles.live(), 0U);
    const void* first = handles.add(1);
    handles.add(1);
    EXPECT_EQ(handles.live(), 2U);
    handles.release(first);
    EXPECT_EQ(handles.live(), 1U);
}

TEST(AVServiceHandlesDeathTest, StopTheProgramWhenOneIsUsedOrReleasedThatNobodyHolds) {
    AVServiceHandles<int> handles;
    const void* released = handles.add(1);
    handles.release(released);
    EXPECT_DEATH(handles.release(released), "released that nobody holds");
    EXPECT_DEATH(handles.find(released), "transfer through an AV service that nobody holds");
    EXPECT_DEATH(handles.find(nullptr), "transfer through an AV service that nobody holds");
}

}  // namespace
}  // namespace vantrel::platform
