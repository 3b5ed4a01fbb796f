#include "platform/linux/mutter/Layout.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <sstream>
#include <string_view>
#include <tuple>
#include <utility>

#include "platform/linux/mutter/Islands.h"

namespace vantrel::mutter {
namespace {

constexpr std::string_view kind = "mutter";

template <class Number>
bool take(std::string_view& text, Number& number, char mark) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end == text.data() + text.size() || *end != mark) return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
    return true;
}

std::string written(double number) {
    std::array<char, 32> digits{};
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr};
}

std::optional<LogicalMonitor> readPart(std::string_view word) {
    LogicalMonitor part;
    int primary = 0;
    if (!take(word, part.x, ',') || !take(word, part.y, ',') || !take(word, part.width, ',') ||
        !take(word, part.height, ',') || !take(word, part.scale, ',') || !take(word, part.transform, ',') ||
        !take(word, primary, ';')) {
        return std::nullopt;
    }
    part.isPrimary = primary != 0;
    while (!word.empty()) {
        const std::string_view mode = word.substr(0, word.find(';'));
        word.remove_prefix(std::min(mode.size() + 1, word.size()));
        const std::size_t mark = mode.find('=');
        if (mark == std::string_view::npos) return std::nullopt;
        part.modes.emplace(mode.substr(0, mark), mode.substr(mark + 1));
    }
    return part;
}

// Places that can be added without a second thought.
bool isSane(const LogicalMonitor& part) {
    constexpr int most = std::numeric_limits<std::int16_t>::max();
    return std::abs(part.x) <= most && std::abs(part.y) <= most && part.width > 0 && part.width <= most &&
           part.height > 0 && part.height <= most && part.scale > 0 && !part.modes.empty();
}

}  // namespace

Layout::Layout(std::vector<LogicalMonitor> parts) : parts_(std::move(parts)) { sort(); }

void Layout::sort() {
    std::stable_sort(parts_.begin(), parts_.end(),
                     [](const LogicalMonitor& left, const LogicalMonitor& right) {
                         return std::tie(left.x, left.y) < std::tie(right.x, right.y);
                     });
}

const LogicalMonitor* Layout::find(const std::string& connector) const {
    const auto found = std::find_if(parts_.begin(), parts_.end(), [&](const LogicalMonitor& part) {
        return part.modes.contains(connector);
    });
    return found != parts_.end() ? &*found : nullptr;
}

bool Layout::isAcceptable() const {
    int left = std::numeric_limits<int>::max();
    int top = std::numeric_limits<int>::max();
    int primaries = 0;
    for (std::size_t index = 0; index < parts_.size(); ++index) {
        left = std::min(left, parts_[index].x);
        top = std::min(top, parts_[index].y);
        primaries += parts_[index].isPrimary ? 1 : 0;
        for (std::size_t other = 0; other < index; ++other) {
            if (parts_[index].overlaps(parts_[other])) return false;
        }
    }
    return left == 0 && top == 0 && primaries == 1 && Islands::find(parts_).size() == 1;
}

Layout Layout::without(const std::string& connector) const {
    Layout layout = *this;
    for (LogicalMonitor& part : layout.parts_) part.modes.erase(connector);
    std::erase_if(layout.parts_, [](const LogicalMonitor& part) { return part.modes.empty(); });
    layout.parts_ = Islands::joined(std::move(layout.parts_));
    layout.moveToOrigin();
    layout.choosePrimary();
    return layout;
}

Layout Layout::with(const LogicalMonitor& part) const {
    Layout layout = *this;
    layout.parts_.push_back(part);
    layout.sort();
    layout.choosePrimary();
    return layout;
}

Layout Layout::withNewcomer(LogicalMonitor part) const {
    const auto last = std::max_element(
        parts_.begin(), parts_.end(),
        [](const LogicalMonitor& left, const LogicalMonitor& right) { return left.right() < right.right(); });
    part.x = last != parts_.end() ? last->right() : 0;
    part.y = last != parts_.end() ? last->y : 0;
    part.isPrimary = false;
    return with(part);
}

void Layout::moveToOrigin() {
    int left = std::numeric_limits<int>::max();
    int top = std::numeric_limits<int>::max();
    for (const LogicalMonitor& part : parts_) {
        left = std::min(left, part.x);
        top = std::min(top, part.y);
    }
    for (LogicalMonitor& part : parts_) {
        part.x -= left;
        part.y -= top;
    }
    sort();
}

void Layout::choosePrimary() {
    bool isChosen = false;
    for (LogicalMonitor& part : parts_)
        part.isPrimary = part.isPrimary && !std::exchange(isChosen, isChosen || part.isPrimary);
    if (!isChosen && !parts_.empty()) parts_.front().isPrimary = true;
}

std::string Layout::line() const {
    std::ostringstream text;
    text << kind;
    for (const LogicalMonitor& part : parts_) {
        text << ' ' << part.x << ',' << part.y << ',' << part.width << ',' << part.height << ','
             << written(part.scale) << ',' << part.transform << ',' << (part.isPrimary ? 1 : 0);
        for (const auto& [connector, mode] : part.modes) text << ';' << connector << '=' << mode;
    }
    return text.str();
}

std::optional<Layout> Layout::read(const std::string& line) {
    std::istringstream words(line);
    std::string word;
    if (!(words >> word) || word != kind) return std::nullopt;
    std::vector<LogicalMonitor> parts;
    while (words >> word) {
        auto part = readPart(word);
        if (!part || !isSane(*part)) return std::nullopt;
        parts.push_back(std::move(*part));
    }
    Layout layout(std::move(parts));
    if (!layout.isAcceptable() || layout.line() != line) return std::nullopt;
    return layout;
}

}  // namespace vantrel::mutter
