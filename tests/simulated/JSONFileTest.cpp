#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "platform/simulated/JSONFile.h"

namespace vantrel::simulated {
namespace {

std::string lineOf(const std::optional<FileError>& error) { return error ? error->line() : "no mistake"; }

TEST(JSONFile, GivesTheReaderTheRootOfTheTree) {
    std::optional<std::string> title;
    const auto error = JSONFile::read(R"({"title": "T"})", "x.json",
                                      [&](const JSONPlace& root) { title = root.member("title").text(); });
    EXPECT_EQ(lineOf(error), "no mistake");
    EXPECT_EQ(title, "T");
}

TEST(JSONFile, GivesTheFirstOfTheReadersMistakes) {
    const auto error = JSONFile::read(R"({"a": 1, "b": 2})", "x.json", [](const JSONPlace& root) {
        root.member("b").report("is wrong");
        root.member("a").report("is wrong too");
    });
    EXPECT_EQ(lineOf(error), "x.json: b: is wrong");
}

TEST(JSONFile, NeverCallsTheReaderWhenTheTextIsNoJSON) {
    const auto error = JSONFile::read("{", "x.json", [](const JSONPlace&) { FAIL(); });
    EXPECT_EQ(lineOf(error).rfind("x.json: line 1, column 2: ", 0), 0U) << lineOf(error);
}

TEST(JSONFile, GivesAFilesBytes) {
    const auto path = std::filesystem::path(testing::TempDir()) / "vantrel-json-file-test.json";
    std::ofstream(path, std::ios::binary) << "a\r\nb";
    const auto contents = JSONFile::contents(path);
    std::filesystem::remove(path);
    ASSERT_TRUE(std::holds_alternative<std::string>(contents));
    EXPECT_EQ(std::get<std::string>(contents), "a\r\nb");
}

TEST(JSONFile, SaysWhatTheSystemSaysOfAFileThatIsNotThere) {
    const auto contents = JSONFile::contents("no-such-file");
    ASSERT_TRUE(std::holds_alternative<FileError>(contents));
    EXPECT_EQ(std::get<FileError>(contents).line(), "no-such-file: No such file or directory");
}

}  // namespace
}  // namespace vantrel::simulated
