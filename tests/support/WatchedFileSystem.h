// A file system that asks before each of its system calls, which may be made, fail,
// or end the program.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/posix/FileSystem.h"

namespace vantrel::test {

class WatchedFileSystem : public posix::FileSystem {
  public:
    // The call's name, and its path if it has one. An error is the call's outcome; a
    // close is made in any case.
    using Before = std::function<std::error_code(std::string_view call, const std::string& path)>;

    // `inner` must outlive it.
    WatchedFileSystem(posix::FileSystem& inner, Before before) : inner_(inner), before_(std::move(before)) {}

    Outcome<File> open(const std::string& path, Open purpose) override {
        if (const auto error = before_("open", path)) return error;
        return inner_.open(path, purpose);
    }
    Outcome<Status> status(File file) override {
        if (const auto error = before_("status", "")) return error;
        return inner_.status(file);
    }
    Outcome<std::string> read(File file, std::size_t most) override {
        if (const auto error = before_("read", "")) return error;
        return inner_.read(file, most);
    }
    Outcome<std::size_t> write(File file, std::string_view bytes) override {
        if (const auto error = before_("write", "")) return error;
        return inner_.write(file, bytes);
    }
    std::error_code sync(File file) override {
        if (const auto error = before_("sync", "")) return error;
        return inner_.sync(file);
    }
    std::error_code lock(File file) override {
        if (const auto error = before_("lock", "")) return error;
        return inner_.lock(file);
    }
    void close(File file) override {
        before_("close", "");
        inner_.close(file);
    }
    Outcome<bool> exists(const std::string& path) override {
        if (const auto error = before_("exists", path)) return error;
        return inner_.exists(path);
    }
    std::error_code rename(const std::string& from, const std::string& to) override {
        if (const auto error = before_("rename", from)) return error;
        return inner_.rename(from, to);
    }
    std::error_code remove(const std::string& path) override {
        if (const auto error = before_("remove", path)) return error;
        return inner_.remove(path);
    }
    std::error_code makeFolder(const std::string& path) override {
        if (const auto error = before_("makeFolder", path)) return error;
        return inner_.makeFolder(path);
    }

  private:
    posix::FileSystem& inner_;
    Before before_;
};

}  // namespace vantrel::test
