#include "platform/simulated/JSONText.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <vector>

namespace vantrel::simulated::JSONText {
namespace {

using nlohmann::json;

constexpr std::size_t longestQuote = 40;

std::string lineAndColumn(std::string_view text, std::size_t position) {
    const std::string_view before = text.substr(0, std::min(position == 0 ? 0 : position - 1, text.size()));
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const std::size_t lastBreak = before.rfind('\n');
    const std::size_t column = before.size() - (lastBreak == std::string_view::npos ? 0 : lastBreak + 1) + 1;
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

// The parser's message without its own idea of the place and without the bytes
// that it read last, which may be many and of any kind.
std::string reasonOf(const nlohmann::detail::exception& error) {
    constexpr int numberOverflow = 406;
    if (error.id == numberOverflow) return "the number is too large";
    std::string reason = error.what();
    if (const std::size_t start = reason.find(" - "); start != std::string::npos) reason.erase(0, start + 3);
    if (const std::size_t end = reason.find("; last read: "); end != std::string::npos) reason.erase(end);
    return reason;
}

class TreeBuilder : public nlohmann::json_sax<json> {
  public:
    explicit TreeBuilder(std::string_view text) : text_(text) {}

    json root;
    std::optional<Mistake> mistake;

    bool null() override { return add(nullptr) != nullptr; }
    bool boolean(bool value) override { return add(value) != nullptr; }
    bool number_integer(json::number_integer_t value) override { return add(value) != nullptr; }
    bool number_unsigned(json::number_unsigned_t value) override { return add(value) != nullptr; }
    bool number_float(json::number_float_t value, const std::string&) override {
        return add(value) != nullptr;
    }
    bool string(std::string& value) override { return add(std::move(value)) != nullptr; }
    bool binary(json::binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(json::object()); }
    bool start_array(std::size_t) override { return open(json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool key(std::string& name) override {
        Open& object = open_.back();
        object.key = name;
        return !object.value->contains(name) || fail(nextPlace(), "appears twice");
    }

    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& error) override {
        return fail(lineAndColumn(text_, position), reasonOf(error));
    }

  private:
    struct Open {
        json* value;
        std::string place;
        std::string key;
    };

    json* add(json value) {
        if (open_.empty()) return &(root = std::move(value));
        json& parent = *open_.back().value;
        if (parent.is_array()) return &parent.emplace_back(std::move(value));
        return &(parent[open_.back().key] = std::move(value));
    }

    bool open(json value) {
        std::string place = nextPlace();
        if (open_.size() == maximumDepth) {
            return fail(std::move(place),
                        "is nested deeper than " + std::to_string(maximumDepth) + " levels");
        }
        open_.push_back({add(std::move(value)), std::move(place), {}});
        return true;
    }

    bool close() {
        open_.pop_back();
        return true;
    }

    std::string nextPlace() const {
        if (open_.empty()) return "";
        const Open& parent = open_.back();
        if (parent.value->is_array()) return elementPlace(parent.place, parent.value->size());
        return memberPlace(parent.place, parent.key);
    }

    bool fail(std::string place, std::string reason) {
        mistake = Mistake{std::move(place), std::move(reason)};
        return false;
    }

    std::string_view text_;
    std::vector<Open> open_;
};

bool isPlain(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_';
}

}  // namespace

std::variant<json, Mistake> parse(std::string_view text) {
    // The parser takes a NUL for the end of the text.
    if (const std::size_t nul = text.find('\0'); nul != std::string_view::npos) {
        return Mistake{lineAndColumn(text, nul + 1), "unexpected NUL byte"};
    }
    TreeBuilder builder(text);
    json::sax_parse(text, &builder);
    if (builder.mistake) return *std::move(builder.mistake);
    return std::move(builder.root);
}

std::string memberPlace(const std::string& parent, const std::string& key) {
    if (key.empty() || key.size() > longestQuote || !std::all_of(key.begin(), key.end(), isPlain)) {
        return parent + "[" + inQuotes(key) + "]";
    }
    return parent.empty() ? key : parent + "." + key;
}

std::string elementPlace(const std::string& parent, std::size_t index) {
    return parent + "[" + std::to_string(index) + "]";
}

std::string inQuotes(const std::string& text) {
    constexpr bool onlyASCII = true;
    std::string result =
        json(text.substr(0, longestQuote + 1)).dump(-1, ' ', onlyASCII, json::error_handler_t::replace);
    // A cut within a character shows as U+FFFD at most, and is cut off here.
    if (result.size() > longestQuote + 2) result = result.substr(0, longestQuote) + "...\"";
    return result;
}

}  // namespace vantrel::simulated::JSONText
