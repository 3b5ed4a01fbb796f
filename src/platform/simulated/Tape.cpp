#include "platform/simulated/Tape.h"

#include <algorithm>
#include <utility>

#include "platform/simulated/Frame.h"

namespace vantrel::simulated {
namespace {

using platform::Transfer;
using Direction = Transfer::Direction;

bool isWrite(const Transfer& recorded, std::uint32_t chip, std::uint32_t address,
             std::span<const std::uint8_t> bytes) {
    return recorded.direction == Direction::write && recorded.chip == chip && recorded.address == address &&
           std::equal(recorded.bytes.begin(), recorded.bytes.end(), bytes.begin(), bytes.end());
}

bool isRead(const Transfer& recorded, std::uint32_t chip, std::size_t length) {
    return recorded.direction == Direction::read && recorded.chip == chip && recorded.length == length;
}

// The VCP code that a message with this command is about.
std::optional<std::uint8_t> codeOf(std::uint8_t command, std::uint32_t address,
                                   std::span<const std::uint8_t> bytes) {
    const std::optional<Request> request = parseRequest(address, bytes);
    if (!request || request->payload.size() < 2 || request->payload[0] != command) return std::nullopt;
    return request->payload[1];
}

}  // namespace

Tape::Tape(std::vector<Transfer> recording) : recording_(std::move(recording)) {}

const Transfer* Tape::write(std::uint32_t chip, std::uint32_t address, std::span<const std::uint8_t> bytes) {
    reply_.reset();
    const Transfer* answer = nextInOrder();
    if (answer != nullptr && isWrite(*answer, chip, address, bytes)) {
        ++*next_;
        // What is read from here on was recorded after all changes so far.
        if (const auto code = codeOf(getVCP, address, bytes)) changed_.reset(*code);
    } else {
        next_.reset();
        answer = lastAnswer(chip, address, bytes);
    }
    if (const auto code = codeOf(setVCP, address, bytes)) changed_.set(*code);
    return answer;
}

const Transfer* Tape::read(std::uint32_t chip, std::size_t length) {
    const Transfer* answer = nextInOrder();
    if (answer != nullptr && isRead(*answer, chip, length)) {
        ++*next_;
        return answer;
    }
    next_.reset();
    const auto reply = std::exchange(reply_, std::nullopt);
    if (!reply || *reply >= recording_.size() || !isRead(recording_[*reply], chip, length)) return nullptr;
    return &recording_[*reply];
}

void Tape::changed(std::uint8_t code) {
    next_.reset();
    changed_.set(code);
}

void Tape::stop() {
    next_.reset();
    reply_.reset();
    isStopped_ = true;
}

const Transfer* Tape::nextInOrder() {
    return next_ && *next_ < recording_.size() ? &recording_[*next_] : nullptr;
}

const Transfer* Tape::lastAnswer(std::uint32_t chip, std::uint32_t address,
                                 std::span<const std::uint8_t> bytes) {
    const auto code = codeOf(getVCP, address, bytes);
    if (isStopped_ || (code && changed_.test(*code))) return nullptr;
    const auto found = std::find_if(recording_.rbegin(), recording_.rend(), [&](const Transfer& recorded) {
        return isWrite(recorded, chip, address, bytes);
    });
    if (found == recording_.rend()) return nullptr;
    reply_ = static_cast<std::size_t>(recording_.rend() - found);
    return &*found;
}

}  // namespace vantrel::simulated
