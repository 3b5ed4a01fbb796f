#include "platform/simulated/CapabilitiesServer.h"

#include <algorithm>

#include "platform/simulated/ReplySpoiler.h"

namespace vantrel::simulated {
namespace {

// Command byte and offset come before a fragment's data.
constexpr std::size_t fragmentHeader = 3;

}  // namespace

CapabilitiesServer::CapabilitiesServer(std::optional<std::string> capabilities,
                                       const Personality& personality)
    : capabilities_(std::move(capabilities)),
      cutAfter_(personality.capabilitiesCutAfter),
      fragmentSize_(std::min(personality.fragmentSize, longestPayload - fragmentHeader)) {
    for (const FragmentFault& fault : personality.fragmentFaults) {
        faults_.emplace_back(fault, Occasions(fault.when));
    }
}

Reply CapabilitiesServer::reply(std::uint16_t offset, Random& random) {
    const bool isCutHere = cutAfter_ && offset >= *cutAfter_;
    if (!capabilities_ || isCutHere) return {};
    const std::size_t length = std::min(capabilities_->size(), cutAfter_.value_or(capabilities_->size()));
    const std::size_t start = std::min<std::size_t>(offset, length);
    const std::size_t size = std::min(fragmentSize_, length - start);

    Bytes payload{capabilitiesReply, static_cast<std::uint8_t>(offset >> 8),
                  static_cast<std::uint8_t>(offset)};
    const std::string data = capabilities_->substr(start, size);
    payload.insert(payload.end(), data.begin(), data.end());
    const FragmentFault* fault = nextFault(random);
    if (fault == nullptr) return {replyFrame(payload)};
    return ReplySpoiler::spoil(*fault, replyFrame(payload), fragmentSize_);
}

void CapabilitiesServer::becomeHealthy() {
    cutAfter_.reset();
    faults_.clear();
}

const FragmentFault* CapabilitiesServer::nextFault(Random& random) {
    const FragmentFault* chosen = nullptr;
    for (auto& [fault, occasions] : faults_) {
        if (occasions.next(random) && chosen == nullptr) chosen = &fault;
    }
    return chosen;
}

}  // namespace vantrel::simulated
