#include "mccs/CapabilitiesSection.h"

#include <cstddef>

#include "text/GraphemeClusters.h"

namespace vantrel::mccs {
namespace {

using text::GraphemeCluster;
using text::GraphemeClusters;

// The text after `name` and "(", when it starts with them. Character by
// character: a lower case of the whole text might join or split characters, and
// the section has to be cut from the text as it was written.
std::optional<std::string_view> contentsAfter(std::string_view name, GraphemeClusters::Iterator position) {
    for (const char expected : name) {
        if (position == GraphemeClusters::end() || (*position).asciiLowercase() != expected) {
            return std::nullopt;
        }
        ++position;
    }
    if (position == GraphemeClusters::end() || !(*position).is('(')) return std::nullopt;
    return (++position).rest();
}

std::string_view upToClosingParenthesis(std::string_view text) {
    std::size_t depth = 1;
    const GraphemeClusters characters(text);
    for (auto position = characters.begin(); position != GraphemeClusters::end(); ++position) {
        if ((*position).is('(')) ++depth;
        if ((*position).is(')') && --depth == 0) {
            return text.substr(0, text.size() - position.rest().size());
        }
    }
    return text;
}

bool continuesAWord(GraphemeCluster before) { return before.is('_') || before.isLetter(); }

}  // namespace

std::optional<std::string_view> capabilitiesSection(std::string_view name, std::string_view text) {
    std::optional<GraphemeCluster> before;
    const GraphemeClusters characters(text);
    for (auto position = characters.begin(); position != GraphemeClusters::end(); ++position) {
        const std::optional<std::string_view> contents = contentsAfter(name, position);
        if (contents && !(before && continuesAWord(*before))) return upToClosingParenthesis(*contents);
        before = *position;
    }
    return std::nullopt;
}

}  // namespace vantrel::mccs
