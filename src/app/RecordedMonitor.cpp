#include "app/RecordedMonitor.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "ddc/CapabilitiesText.h"
#include "ddc/DDCFrame.h"
#include "mccs/MCCS.h"
#include "mccs/MonitorCapabilities.h"

namespace vantrel::app::RecordedMonitor {
namespace {

using platform::Transfer;
using simulated::FeaturePlan;
using simulated::MonitorPlan;
using Bytes = std::vector<std::uint8_t>;
// String bytes by their offset.
using Fragments = std::map<std::uint16_t, Bytes>;

// The longest beginning that a desk file takes.
void limit(std::vector<Transfer>& transfers) {
    if (transfers.size() > MonitorPlan::mostTransfers) transfers.resize(MonitorPlan::mostTransfers);
    const auto isTooLong = [](const Transfer& transfer) {
        return transfer.length > MonitorPlan::longestTransfer;
    };
    transfers.erase(std::find_if(transfers.begin(), transfers.end(), isTooLong), transfers.end());
}

// What a request is about, behind its length and command.
std::optional<Bytes> argumentsOf(const Transfer& request, std::uint8_t command, std::size_t count) {
    constexpr std::size_t begin = 2;
    if (request.chip != ddc::displayChipAddress || request.address != ddc::hostSourceAddress ||
        request.bytes.size() != begin + count + 1 || request.bytes[1] != command)
        return std::nullopt;
    return Bytes(request.bytes.begin() + begin, request.bytes.end() - 1);
}

void learnReading(std::uint8_t code, const Bytes& reply, MonitorPlan& plan) {
    if (!ddc::isValidReading(reply, code)) return;
    FeaturePlan& feature = plan.features[code] = FeaturePlan();
    feature.unsupported = ddc::isUnsupported(reply);
    if (feature.unsupported) return;
    const ddc::VCPReading reading = ddc::readingOf(reply);
    feature.current = reading.current;
    feature.maximum = reading.maximum;
}

void learn(const Transfer& request, const Bytes& reply, MonitorPlan& plan, Fragments& fragments) {
    if (const auto code = argumentsOf(request, ddc::getVCPFeature, 1))
        learnReading(code->front(), reply, plan);
    if (const auto place = argumentsOf(request, ddc::capabilitiesRequest, 2)) {
        const auto offset = static_cast<std::uint16_t>(place->front() << 8 | place->back());
        if (auto fragment = ddc::fragmentOf(reply, offset)) fragments[offset] = *std::move(fragment);
    }
}

std::optional<std::string> capabilitiesOf(const Fragments& fragments) {
    std::string string;
    for (const auto& [offset, bytes] : fragments) {
        if (offset != string.size()) break;
        string.append(bytes.begin(), bytes.end());
    }
    if (string.empty()) return std::nullopt;
    return string;
}

// When the monitor shows one of the inputs that it lists, they are what VCP code 60 is.
void findInputs(MonitorPlan& plan) {
    const auto feature = plan.features.find(mccs::MCCS::inputSource);
    if (!plan.capabilities || feature == plan.features.end() || feature->second.unsupported) return;
    const auto parsed = mccs::MonitorCapabilities::parse(ddc::capabilitiesText(*plan.capabilities));
    if (!parsed) return;
    const auto listed = parsed->values.find(mccs::MCCS::inputSource);
    if (listed == parsed->values.end()) return;
    simulated::InputPlan inputs{feature->second.current, feature->second.current, {}};
    std::set<std::uint16_t> seen;
    for (const std::uint16_t input : listed->second) {
        if (seen.insert(input).second) inputs.available.push_back(input);
    }
    if (!seen.contains(inputs.shown)) return;
    plan.inputs = std::move(inputs);
    plan.features.erase(feature);
}

}  // namespace

MonitorPlan make(std::vector<Transfer> transfers) {
    limit(transfers);
    MonitorPlan plan;
    Fragments fragments;
    const Transfer* request = nullptr;
    for (const Transfer& transfer : transfers) {
        if (transfer.direction == Transfer::Direction::write) {
            request = &transfer;
        } else if (transfer.status == 0 && request != nullptr) {
            learn(*std::exchange(request, nullptr), transfer.bytes, plan, fragments);
        }
    }
    plan.capabilities = capabilitiesOf(fragments);
    findInputs(plan);
    const auto isFailure = [](const Transfer& transfer) { return transfer.status != 0; };
    plan.personality.dead = !transfers.empty() && std::all_of(transfers.begin(), transfers.end(), isFailure);
    plan.recording = std::move(transfers);
    return plan;
}

}  // namespace vantrel::app::RecordedMonitor
