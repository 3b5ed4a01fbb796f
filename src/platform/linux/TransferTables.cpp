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

std::optional<TransferTable> TransferTables::first(const std::string& output) const {
    if (const auto found = found_.find(output); found != found_.end()) return found->second;
    const auto notes = memory_.tables();
    const auto note = notes.find(output);
    return note != notes.end() ? read(note->second) : std::nullopt;
}

void TransferTables::set(const std::string& output, const TransferTable& table) {
    auto first = this->first(output);
    // One of another length can't be had back either.
    if (!first || first->red.size() != table.red.size()) {
        first = desktop_.table(output);
        // What can't be had back isn't given away.
        if (!first || first->red.size() != table.red.size()) return;
        if (desktop_.keepsTables()) memory_.noteTable(output, written(*first));
    }
    found_.insert_or_assign(output, *std::move(first));
    desktop_.setTable(output, table);
}

void TransferTables::restore() {
    // What a program noted that ended without restoring it is this one's to restore.
    for (const auto& [output, text] : memory_.tables()) {
        if (auto table = read(text)) {
            found_.emplace(output, *std::move(table));
        } else {
            memory_.forgetTable(output);
        }
    }
    restoreOwn();
}

void TransferTables::restoreOwn() {
    std::erase_if(found_, [this](const auto& item) {
        // Who can't have it now may have it later.
        if (!desktop_.setTable(item.first, item.second)) return false;
        memory_.forgetTable(item.first);
        return true;
    });
}

}  // namespace vantrel::linux
