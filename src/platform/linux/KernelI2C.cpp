#include "platform/linux/KernelI2C.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/i2c-dev.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace vantrel::linux {
namespace {

class OpenBus {
  public:
    explicit OpenBus(I2CDevices::Bus bus)
        : descriptor_(::open(KernelI2C::path(bus).c_str(), O_RDWR | O_CLOEXEC)) {}
    OpenBus(const OpenBus&) = delete;
    OpenBus& operator=(const OpenBus&) = delete;
    ~OpenBus() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    // 0, or why not. Fails with EBUSY where a driver of the kernel talks to the address:
    // two who do would spoil each other's messages.
    int choose(std::uint8_t address) const {
        if (descriptor_ < 0) return errno;
        return ::ioctl(descriptor_, I2C_SLAVE, static_cast<unsigned long>(address)) == 0 ? 0 : errno;
    }
    int get() const { return descriptor_; }

  private:
    const int descriptor_;
};

// What a transfer of `size` bytes came to. An interrupted one isn't made again: part of
// it may have reached the monitor.
int outcome(ssize_t count, std::size_t size) {
    if (count < 0) return errno;
    return static_cast<std::size_t>(count) == size ? 0 : EIO;
}

}  // namespace

int KernelI2C::write(Bus bus, std::uint8_t address, std::span<const std::uint8_t> bytes) {
    const OpenBus open(bus);
    if (const int error = open.choose(address)) return error;
    return outcome(::write(open.get(), bytes.data(), bytes.size()), bytes.size());
}

int KernelI2C::read(Bus bus, std::uint8_t address, std::span<std::uint8_t> bytes) {
    const OpenBus open(bus);
    if (const int error = open.choose(address)) return error;
    return outcome(::read(open.get(), bytes.data(), bytes.size()), bytes.size());
}

}  // namespace vantrel::linux
