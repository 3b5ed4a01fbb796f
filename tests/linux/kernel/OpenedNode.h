// A device node as a program opens it, and DDC/CI through it by hand.
#pragma once

#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <linux/i2c-dev.h>
#include <string>
#include <sys/ioctl.h>
#include <unistd.h>
#include <vector>

namespace vantrel::test {

class OpenedNode {
  public:
    using Bytes = std::vector<std::uint8_t>;

    explicit OpenedNode(const std::string& path) : descriptor_(::open(path.c_str(), O_RDWR | O_CLOEXEC)) {
        if (descriptor_ < 0) error_ = errno;
    }
    OpenedNode(const std::string& path, unsigned long address) : OpenedNode(path) { select(address); }
    OpenedNode(const OpenedNode&) = delete;
    OpenedNode& operator=(const OpenedNode&) = delete;
    ~OpenedNode() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    int descriptor() const { return descriptor_; }
    // Why it could not be opened; 0 if it could.
    int error() const { return error_; }

    // Each is 0, or the error.
    int select(unsigned long address) const { return errorOf(::ioctl(descriptor_, I2C_SLAVE, address)); }
    int write(const Bytes& bytes) const { return errorOf(::write(descriptor_, bytes.data(), bytes.size())); }
    int read(Bytes& bytes) const { return errorOf(::read(descriptor_, bytes.data(), bytes.size())); }

    // A message to a display, with its sender before it and its checksum behind it.
    static Bytes message(const Bytes& payload) {
        Bytes bytes{0x51, static_cast<std::uint8_t>(0x80 | payload.size())};
        bytes.insert(bytes.end(), payload.begin(), payload.end());
        std::uint8_t checksum = 0x6E;
        for (const std::uint8_t byte : bytes) checksum = static_cast<std::uint8_t>(checksum ^ byte);
        bytes.push_back(checksum);
        return bytes;
    }
    int ask(std::uint8_t code) const { return write(message({0x01, code})); }
    int set(std::uint8_t code, std::uint8_t value) const { return write(message({0x03, code, 0, value})); }
    // What the display has to say; empty after an error.
    Bytes answer(std::size_t size = 11) const {
        Bytes bytes(size);
        if (read(bytes) != 0) bytes.clear();
        return bytes;
    }

  private:
    static int errorOf(long result) { return result < 0 ? errno : 0; }

    int descriptor_;
    int error_ = 0;
};

}  // namespace vantrel::test
