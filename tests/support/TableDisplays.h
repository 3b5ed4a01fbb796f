// Displays with the transfer tables that a test gives them, and a journal of
// every call about one.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "support/NoDisplays.h"

namespace vantrel::test {

using Journal = std::vector<std::string>;

class TableDisplays : public NoDisplays {
  public:
    using DisplayID = platform::DisplayID;
    using TransferTable = platform::TransferTable;

    explicit TableDisplays(Journal& journal) : journal_(journal) {}

    // The same samples in every channel.
    static TransferTable grey(std::vector<float> samples) { return {samples, samples, samples}; }

    std::uint32_t transferTableCapacity(DisplayID display) override {
        note("capacity of " + std::to_string(display));
        return capacity;
    }
    std::optional<TransferTable> transferTable(DisplayID display, std::uint32_t samples) override {
        note("read " + std::to_string(display) + " up to " + std::to_string(samples));
        const auto found = tables.find(display);
        if (found == tables.end()) return std::nullopt;
        return found->second;
    }
    void setTransferTable(DisplayID display, const TransferTable& table) override {
        note("write " + std::to_string(display));
        tables[display] = table;
    }

    std::uint32_t capacity = 256;
    // As the displays show it now; a display that is missing here can't be read.
    std::map<DisplayID, TransferTable> tables;

  private:
    void note(std::string call) { journal_.push_back(std::move(call)); }

    Journal& journal_;
};

}  // namespace vantrel::test
