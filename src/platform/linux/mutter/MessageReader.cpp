#include "platform/linux/mutter/MessageReader.h"

namespace vantrel::mutter {

std::string MessageReader::text() {
    const char* value = nullptr;
    read(SD_BUS_TYPE_STRING, static_cast<void*>(&value));
    return value != nullptr ? value : "";
}

bool MessageReader::truth() {
    int value = 0;
    read(SD_BUS_TYPE_BOOLEAN, &value);
    return value != 0;
}

std::int32_t MessageReader::integer() {
    std::int32_t value = 0;
    read(SD_BUS_TYPE_INT32, &value);
    return value;
}

std::uint32_t MessageReader::number() {
    std::uint32_t value = 0;
    read(SD_BUS_TYPE_UINT32, &value);
    return value;
}

double MessageReader::real() {
    double value = 0;
    read(SD_BUS_TYPE_DOUBLE, &value);
    return value;
}

std::vector<std::uint8_t> MessageReader::bytes() {
    const void* data = nullptr;
    std::size_t size = 0;
    if (!isGood_ || !check(sd_bus_message_read_array(message_, SD_BUS_TYPE_BYTE, &data, &size))) return {};
    const auto* const first = static_cast<const std::uint8_t*>(data);
    return {first, first + size};
}

std::vector<std::uint16_t> MessageReader::words() {
    const void* data = nullptr;
    std::size_t size = 0;
    if (!isGood_ || !check(sd_bus_message_read_array(message_, SD_BUS_TYPE_UINT16, &data, &size))) return {};
    const auto* const first = static_cast<const std::uint16_t*>(data);
    return {first, first + size / sizeof *first};
}

void MessageReader::skip(const char* types) {
    if (isGood_) check(sd_bus_message_skip(message_, types));
}

// Nothing being left, where something is expected, is as bad as a wrong type.
bool MessageReader::check(int result) {
    if (result <= 0) isGood_ = false;
    return isGood_;
}

void MessageReader::read(char type, void* value) {
    if (isGood_) check(sd_bus_message_read_basic(message_, type, value));
}

void MessageReader::enter(char kind, const char* contents) {
    if (isGood_) check(sd_bus_message_enter_container(message_, kind, contents));
}

const char* MessageReader::enterVariant() {
    char type = 0;
    const char* contents = nullptr;
    if (!isGood_ || !check(sd_bus_message_peek_type(message_, &type, &contents)) ||
        type != SD_BUS_TYPE_VARIANT) {
        isGood_ = false;
        return "";
    }
    enter(SD_BUS_TYPE_VARIANT, contents);
    return contents;
}

void MessageReader::leave() {
    if (isGood_) check(sd_bus_message_exit_container(message_));
}

bool MessageReader::hasMore() { return isGood_ && sd_bus_message_at_end(message_, 0) == 0; }

}  // namespace vantrel::mutter
