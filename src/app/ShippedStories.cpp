#include "app/ShippedStories.h"

#include <algorithm>

#include "app/ShippedStoriesTexts.h"
#include "runtime/Fatal.h"

namespace vantrel::app::ShippedStories {

using simulated::ShippedText;

std::vector<Entry> list() {
    std::vector<Entry> result;
    for (const ShippedText& shipped : shippedStoriesTexts()) {
        StoryFileResult story = read(shipped.name);
        if (const auto* error = std::get_if<simulated::FileError>(&story)) runtime::fatal(error->line());
        result.push_back({shipped.name, std::get<Story>(std::move(story)).description});
    }
    return result;
}

std::optional<std::string_view> text(std::string_view name) {
    const auto texts = shippedStoriesTexts();
    const auto found = std::ranges::find(texts, name, &ShippedText::name);
    if (found == texts.end()) return std::nullopt;
    return found->text;
}

StoryFileResult read(std::string_view nameOrPath) {
    if (const auto shipped = text(nameOrPath)) return StoryFile::readText(*shipped, fileName(nameOrPath));
    return StoryFile::readFile(nameOrPath);
}

std::string fileName(std::string_view nameOrPath) {
    return text(nameOrPath) ? "stories/" + std::string(nameOrPath) + ".json" : std::string(nameOrPath);
}

}  // namespace vantrel::app::ShippedStories
