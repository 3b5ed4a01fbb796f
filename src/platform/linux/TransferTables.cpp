#include "platform/linux/TransferTables.h"

#include <array>
#include <charconv>
#include <vector>

namespace vantrel::linux {
namespace {

using platform::TransferTable;

// Samples as decimal numbers, the channels one after the other, of equal length. The
// shortest text that reads back as the same number.
std::string written(const TransferTable& table) {
    std::string text;
    for (const auto* channel : {&table.red, &table.green, &table.blue}) {
        for (const float sample : *channel) {
            std::array<char, 32> digits{};
            const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), sample).ptr;
            text.append(digits.data(), end).append(" ");
        }
    }
    return text;
}

std::optional<TransferTable> read(const std::string& text) {
    std::vector<float> samples;
    const char* place = text.data();
    const char* const end = text.data() + text.size();
    while (place < end) {
        float sample = 0;
        const auto [stop, error] = std::from_chars(place, end, sample);
        if (error != std::errc() || stop == end || *stop != ' ') return std::nullopt;
        samples.push_back(sample);
        place = stop + 1;
    }
    const auto length = static_cast<std::ptrdiff_t>(samples.size() / 3);
    if (samples.empty() || samples.size() % 3 != 0) return std::nullopt;
    const auto start = samples.begin();
    return TransferTable{
        {start, start + length}, {start + length, start + 2 * length}, {start + 2 * length, samples.end()}};
}

}  // namespace

void TransferTables::set(const std::string& output, const TransferTable& table) {
    if (!found_.contains(output)) {
        const auto found = desktop_.table(output);
        // What can't be had back isn't given away.
        if (!found) return;
        if (desktop_.keepsTables()) memory_.noteTable(output, written(*found));
        found_.emplace(output, *found);
    }
    desktop_.setTable(output, table);
}

void TransferTables::restore() {
    for (const auto& [output, text] : memory_.tables()) {
        if (found_.contains(output)) continue;
        if (const auto table = read(text)) desktop_.setTable(output, *table);
        memory_.forgetTable(output);
    }
    restoreOwn();
}

void TransferTables::restoreOwn() {
    for (const auto& [output, table] : found_) {
        desktop_.setTable(output, table);
        if (desktop_.keepsTables()) memory_.forgetTable(output);
    }
    found_.clear();
}

}  // namespace vantrel::linux
