#include <gtest/gtest.h>

#include "app/StoryDefaults.h"
#include "support/RecordingLogSink.h"
#include "support/TemporaryFolder.h"

namespace vantrel::app {
namespace {

using platform::DefaultsValue;

DefaultsValue integer(std::int64_t value) { return value; }

TEST(StoryDefaults, WithoutAFolderStayInMemory) {
    test::RecordingLogSink log;
    StoryDefaults defaults(std::nullopt, log);
    defaults.open();
    defaults.set("a", integer(1));
    defaults.set("b", integer(2));
    defaults.remove("b");
    defaults.open();
    EXPECT_EQ(defaults.value("a"), integer(1));
    EXPECT_EQ(defaults.value("b"), std::nullopt);
}

TEST(StoryDefaults, WithAFolderAreInItsFileAfterEachChange) {
    const test::TemporaryFolder folder;
    test::RecordingLogSink log;
    StoryDefaults defaults(folder.path(), log);
    defaults.open();
    defaults.set("a", integer(1));
    defaults.set("b", integer(2));
    EXPECT_EQ(folder.bytes("settings.json"), "{\n  \"a\": {\"integer\":1},\n  \"b\": {\"integer\":2}\n}\n");
    defaults.remove("b");
    EXPECT_EQ(folder.bytes("settings.json"), "{\n  \"a\": {\"integer\":1}\n}\n");
    EXPECT_TRUE(log.lines().empty());
}

TEST(StoryDefaults, WithAFolderAreReadAnewWhenTheProgramStarts) {
    const test::TemporaryFolder folder;
    test::RecordingLogSink log;
    StoryDefaults defaults(folder.path(), log);
    defaults.open();
    defaults.set("a", integer(1));
    folder.put("settings.json", R"({"a": {"integer": 2}})");
    EXPECT_EQ(defaults.value("a"), integer(1));
    defaults.open();
    EXPECT_EQ(defaults.value("a"), integer(2));
}

}  // namespace
}  // namespace vantrel::app
