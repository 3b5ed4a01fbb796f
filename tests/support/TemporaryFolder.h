// A new folder on the real disk, which goes with all that is in it.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <optional>
#include <stdlib.h>
#include <string>
#include <system_error>

#include "runtime/Fatal.h"

namespace vantrel::test {

class TemporaryFolder {
  public:
    TemporaryFolder() : path_(testing::TempDir() + "vantrel.XXXXXX") {
        runtime::require(::mkdtemp(path_.data()) != nullptr, "no temporary folder can be made");
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return path_; }
    std::string path(const std::string& name) const { return path_ + "/" + name; }

    void put(const std::string& name, const std::string& bytes) const {
        std::ofstream(path(name), std::ios::binary) << bytes;
    }
    std::optional<std::string> bytes(const std::string& name) const {
        std::ifstream file(path(name), std::ios::binary);
        if (!file) return std::nullopt;
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

  private:
    std::string path_;
};

}  // namespace vantrel::test
