#include "platform/linux/Sysfs.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace vantrel::linux {
namespace {

// The largest attribute of interest is an EDID of 256 blocks.
constexpr std::size_t largest = 256UL * 128;

class File {
  public:
    File(const std::string& path, int flags) : descriptor_(::open(path.c_str(), flags | O_CLOEXEC)) {}
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }
    int get() const { return descriptor_; }

  private:
    int descriptor_;
};

std::optional<std::vector<std::uint8_t>> contents(const std::string& path) {
    const File file(path, O_RDONLY);
    if (file.get() < 0) return std::nullopt;
    std::vector<std::uint8_t> found(largest);
    std::size_t size = 0;
    while (size < found.size()) {
        const ssize_t count = ::read(file.get(), found.data() + size, found.size() - size);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        size += static_cast<std::size_t>(count);
    }
    found.resize(size);
    return found;
}

// "card0-DP-2" before "card0-DP-10".
bool isBefore(std::string_view left, std::string_view right) {
    constexpr std::string_view digits = "0123456789";
    while (!left.empty() && !right.empty()) {
        const auto leftRun = left.substr(0, left.find_first_not_of(digits));
        const auto rightRun = right.substr(0, right.find_first_not_of(digits));
        if (!leftRun.empty() && !rightRun.empty()) {
            if (leftRun.size() != rightRun.size()) return leftRun.size() < rightRun.size();
            if (leftRun != rightRun) return leftRun < rightRun;
            left.remove_prefix(leftRun.size());
            right.remove_prefix(rightRun.size());
            continue;
        }
        if (left.front() != right.front()) return left.front() < right.front();
        left.remove_prefix(1);
        right.remove_prefix(1);
    }
    return left.size() < right.size();
}

}  // namespace

std::vector<std::uint8_t> Sysfs::bytes(const std::string& path) const {
    return contents(root_ + path).value_or(std::vector<std::uint8_t>());
}

std::optional<std::string> Sysfs::text(const std::string& path) const {
    const auto found = contents(root_ + path);
    if (!found) return std::nullopt;
    std::string text(found->begin(), found->end());
    if (text.ends_with('\n')) text.pop_back();
    return text;
}

std::optional<std::uint64_t> Sysfs::number(const std::string& path) const {
    const auto found = text(path);
    if (!found) return std::nullopt;
    std::uint64_t value = 0;
    const char* end = found->data() + found->size();
    const auto [stop, error] = std::from_chars(found->data(), end, value);
    if (error != std::errc() || stop != end) return std::nullopt;
    return value;
}

bool Sysfs::exists(const std::string& path) const { return ::access((root_ + path).c_str(), F_OK) == 0; }

std::vector<std::string> Sysfs::names(const std::string& folder) const {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir((root_ + folder).c_str()), ::closedir);
    std::vector<std::string> names;
    while (open != nullptr) {
        const dirent* entry = ::readdir(open.get());  // one stream, one thread
        if (entry == nullptr) break;
        if (std::string_view(entry->d_name).starts_with('.')) continue;
        names.emplace_back(entry->d_name);
    }
    std::sort(names.begin(), names.end(), isBefore);
    return names;
}

std::optional<std::string> Sysfs::realPath(const std::string& path) const {
    std::array<char, PATH_MAX> buffer{};
    if (::realpath((root_ + path).c_str(), buffer.data()) == nullptr) return std::nullopt;
    return std::string(buffer.data());
}

int Sysfs::write(const std::string& path, const std::string& text) const {
    const File file(root_ + path, O_WRONLY);
    if (file.get() < 0) return errno;
    ssize_t written = -1;
    do {
        written = ::write(file.get(), text.data(), text.size());
    } while (written < 0 && errno == EINTR);
    if (written < 0) return errno;
    return static_cast<std::size_t>(written) == text.size() ? 0 : EIO;
}

}  // namespace vantrel::linux
