#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/simulated/DeskFile.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

std::string lineOf(const std::filesystem::path& path) {
    const DeskFileResult result = DeskFile::readFile(path);
    const auto* error = std::get_if<DeskFileError>(&result);
    return error == nullptr ? "" : error->line();
}

class DeskFileTest : public testing::Test {
  protected:
    DeskFileTest()
        : folder_(std::filesystem::temp_directory_path() /
                  ("vantrel-desk-" + std::to_string(getpid()) + "-" +
                   testing::UnitTest::GetInstance()->current_test_info()->name())) {
        std::filesystem::create_directories(folder_);
    }
    ~DeskFileTest() override { std::filesystem::remove_all(folder_); }

    std::filesystem::path write(const std::string& name, const std::string& text) {
        std::ofstream(folder_ / name, std::ios::binary) << text;
        return folder_ / name;
    }

    std::filesystem::path folder_;
};

TEST_F(DeskFileTest, IsRead) {
    const DeskFileResult result = DeskFile::readFile(write("d.json", deskWith("")));
    ASSERT_TRUE(std::holds_alternative<Desk>(result));
    EXPECT_EQ(std::get<Desk>(result).title, "T");
}

TEST_F(DeskFileTest, IsNamedInItsMistake) {
    const auto path = write("d.json", "{}");
    EXPECT_EQ(lineOf(path), path.string() + ": title: is missing");
}

TEST_F(DeskFileTest, MayBeMissing) {
    EXPECT_EQ(lineOf(folder_ / "d.json"), (folder_ / "d.json").string() + ": No such file or directory");
}

TEST_F(DeskFileTest, MayBeADirectory) { EXPECT_EQ(lineOf(folder_), folder_.string() + ": Is a directory"); }

TEST_F(DeskFileTest, MayBeBelowAFile) {
    const auto path = write("d.json", "{}") / "e.json";
    EXPECT_EQ(lineOf(path), path.string() + ": Not a directory");
}

TEST_F(DeskFileTest, MayBeALinkInACircle) {
    const auto path = folder_ / "d.json";
    std::filesystem::create_symlink(path, path);
    EXPECT_EQ(lineOf(path), path.string() + ": Too many levels of symbolic links");
}

TEST_F(DeskFileTest, MayBeAsLargeAsTheLimit) {
    std::string text = deskWith("");
    text.resize(DeskFile::maximumBytes, ' ');
    EXPECT_EQ(lineOf(write("d.json", text)), "");
}

TEST_F(DeskFileTest, MayBeTooLarge) {
    std::string text = deskWith("");
    text.resize(DeskFile::maximumBytes + 1, ' ');
    const auto path = write("d.json", text);
    EXPECT_EQ(lineOf(path), path.string() + ": is larger than 4194304 bytes");
}

TEST_F(DeskFileTest, MayHaveNoEnd) {
    EXPECT_EQ(lineOf("/dev/zero"), "/dev/zero: is larger than 4194304 bytes");
}

TEST_F(DeskFileTest, MayBeginWithAByteOrderMark) { EXPECT_EQ(mistakeIn("\xEF\xBB\xBF" + deskWith("")), ""); }

}  // namespace
}  // namespace vantrel::simulated
