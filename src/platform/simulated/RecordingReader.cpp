#include "platform/simulated/RecordingReader.h"

#include <nlohmann/json.hpp>

#include "platform/simulated/Frame.h"
#include "platform/simulated/ObjectShape.h"
#include "platform/simulated/ValueReaders.h"

namespace vantrel::simulated::RecordingReader {
namespace {

using namespace ValueReaders;

using platform::Transfer;

void takeBytes(const JSONPlace& place, Transfer& transfer) {
    const std::optional<std::string> bytes = place.hexBytes();
    if (!bytes) return;
    if (bytes->size() > MonitorPlan::longestTransfer) {
        place.report("has more than " + std::to_string(MonitorPlan::longestTransfer) + " bytes");
        return;
    }
    transfer.bytes.assign(bytes->begin(), bytes->end());
    transfer.length = static_cast<std::uint32_t>(bytes->size());
}

void takeWritten(const JSONPlace& place, Transfer& transfer) { takeBytes(place, transfer); }

// The bytes, or, where there are none, how many were asked for.
void takeRead(const JSONPlace& place, Transfer& transfer) {
    transfer.direction = Transfer::Direction::read;
    if (place.value().is_string()) return takeBytes(place, transfer);
    if (!place.value().is_number()) return place.reportType("a text like \"6E 80\" or a whole number");
    if (const auto length = count(0U, MonitorPlan::longestTransfer)(place)) transfer.length = *length;
}

std::optional<std::int32_t> status(const JSONPlace& place) {
    const auto value = code<std::uint32_t>(place);
    if (!value) return std::nullopt;
    return static_cast<std::int32_t>(*value);
}

void checkTransfer(const JSONPlace& place, Transfer& transfer) {
    const bool isWrite = place.has("write");
    if (isWrite == place.has("read")) return place.report("must have one of write and read");
    if (isWrite && !place.has("address")) transfer.address = hostAddress;
    if (isWrite) return;
    const JSONPlace bytes = place.member("read");
    const bool hasBytes = bytes.value().is_string();
    if (!hasBytes && transfer.status == 0) bytes.report("must be the bytes, as the status is 0");
    if (hasBytes && transfer.status != 0) bytes.report("must be a number of bytes, as the status is not 0");
}

const ObjectShape<Transfer>& transferShape() {
    static const ObjectShape<Transfer> shape{
        "Transfer",
        {
            {"atMs", into(&Transfer::at, milliseconds), Field<Transfer>::Need::required},
            {"tookMs", into(&Transfer::took, milliseconds)},
            {"write", takeWritten},
            {"read", takeRead},
            {"chip", into(&Transfer::chip, code<std::uint32_t>)},
            {"address", into(&Transfer::address, code<std::uint32_t>)},
            {"status", into(&Transfer::status, status)},
        },
        [](const JSONPlace& place, Transfer& transfer) {
            if (!place.has("chip")) transfer.chip = displayChip;
            checkTransfer(place, transfer);
        }};
    return shape;
}

}  // namespace

std::optional<std::vector<Transfer>> read(const JSONPlace& place) {
    const std::vector<JSONPlace> elements = place.elements();
    if (elements.size() > MonitorPlan::mostTransfers) {
        place.report("has more than " + std::to_string(MonitorPlan::mostTransfers) + " transfers");
        return std::nullopt;
    }
    std::vector<Transfer> result;
    for (const JSONPlace& element : elements) {
        std::optional<Transfer> transfer = transferShape()(element);
        if (!transfer) continue;
        if (!result.empty() && transfer->at < result.back().at)
            element.member("atMs").report("is before the transfer before it");
        result.push_back(*std::move(transfer));
    }
    return result;
}

std::vector<DeskFile::Words> vocabulary() { return {transferShape().words()}; }

}  // namespace vantrel::simulated::RecordingReader
