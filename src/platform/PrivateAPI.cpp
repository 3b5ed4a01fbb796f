#include "platform/PrivateAPI.h"

#include <string>
#include <utility>

#include "runtime/Fatal.h"
#include "text/Hex.h"

namespace vantrel::platform::PrivateAPI {
namespace {

void logFailure(const Log& log, const char* transfer, std::size_t count, std::int32_t status) {
    log.write(Log::ddc, LogLevel::debug,
              std::string("I2C ") + transfer + " of " + std::to_string(count) + " bytes failed: 0x" +
                  text::lowerHex(static_cast<std::uint32_t>(status)));
}

}  // namespace

bool writeI2C(PrivateFunctions& functions, const Log& log, const AVService& service, std::uint32_t chip,
              std::uint32_t offset, std::span<const std::uint8_t> bytes) {
    const AVServiceWriteI2C write = functions.avWrite();
    if (write == nullptr) return false;
    runtime::require(std::in_range<std::uint32_t>(bytes.size()), "an I2C write of too many bytes");
    const std::int32_t status =
        write(service.get(), chip, offset, bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    if (status != 0) logFailure(log, "write", bytes.size(), status);
    return status == 0;
}

std::optional<std::vector<std::uint8_t>> readI2C(PrivateFunctions& functions, const Log& log,
                                                 const AVService& service, std::uint32_t chip,
                                                 std::uint32_t offset, std::ptrdiff_t count) {
    const AVServiceReadI2C read = functions.avRead();
    if (read == nullptr) return std::nullopt;
    runtime::require(count >= 0, "an I2C read of a negative number of bytes");
    runtime::require(std::in_range<std::uint32_t>(count), "an I2C read of too many bytes");
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(count), 0);
    const std::int32_t status =
        read(service.get(), chip, offset, bytes.data(), static_cast<std::uint32_t>(count));
    if (status != 0) {
        logFailure(log, "read", bytes.size(), status);
        return std::nullopt;
    }
    return bytes;
}

}  // namespace vantrel::platform::PrivateAPI
