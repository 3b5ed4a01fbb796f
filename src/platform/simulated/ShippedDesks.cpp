#include "platform/simulated/ShippedDesks.h"

#include <algorithm>

#include "platform/simulated/ShippedDesksTexts.h"
#include "runtime/Fatal.h"

namespace vantrel::simulated::ShippedDesks {
namespace {

std::string fileName(std::string_view name) { return "desks/" + std::string(name) + ".json"; }

}  // namespace

std::vector<Entry> list() {
    std::vector<Entry> result;
    for (const ShippedText& shipped : shippedDesksTexts()) {
        DeskFileResult desk = DeskFile::readText(shipped.text, fileName(shipped.name));
        if (const auto* error = std::get_if<DeskFileError>(&desk)) runtime::fatal(error->line());
        result.push_back({shipped.name, std::get<Desk>(std::move(desk)).description});
    }
    std::stable_partition(result.begin(), result.end(),
                          [](const Entry& entry) { return entry.name == defaultName; });
    return result;
}

std::optional<std::string_view> text(std::string_view name) {
    for (const ShippedText& shipped : shippedDesksTexts()) {
        if (shipped.name == name) return shipped.text;
    }
    return std::nullopt;
}

DeskFileResult read(std::string_view nameOrPath) {
    if (const auto shipped = text(nameOrPath)) return DeskFile::readText(*shipped, fileName(nameOrPath));
    return DeskFile::readFile(nameOrPath);
}

}  // namespace vantrel::simulated::ShippedDesks
