#include "platform/linux/SessionMemory.h"

#include <optional>
#include <variant>

namespace vantrel::linux {
namespace {

SessionMemory::Notes read(platform::Defaults& defaults, const std::string& key) {
    SessionMemory::Notes notes;
    const auto value = defaults.value(key);
    const auto* dictionary = value ? std::get_if<platform::DefaultsDictionary>(&*value) : nullptr;
    if (dictionary == nullptr) return notes;
    for (const auto& [output, text] : *dictionary) {
        if (const auto* note = std::get_if<std::string>(&text)) notes.emplace(output, *note);
    }
    return notes;
}

}  // namespace

SessionMemory::Notes SessionMemory::notes(const std::string& kind) const {
    return read(*open_(), kind + desktop_);
}

void SessionMemory::note(const std::string& kind, const std::string& output, const std::string& text) {
    const auto defaults = open_();
    Notes notes = read(*defaults, kind + desktop_);
    notes.insert_or_assign(output, text);
    keep(kind, notes, *defaults);
}

void SessionMemory::forget(const std::string& kind, const std::string& output) {
    const auto defaults = open_();
    Notes notes = read(*defaults, kind + desktop_);
    if (notes.erase(output) == 1) keep(kind, notes, *defaults);
}

void SessionMemory::keep(const std::string& kind, const Notes& notes, platform::Defaults& defaults) {
    if (notes.empty()) {
        defaults.remove(kind + desktop_);
    } else {
        defaults.set(kind + desktop_, platform::DefaultsDictionary(notes.begin(), notes.end()));
    }
}

}  // namespace vantrel::linux
