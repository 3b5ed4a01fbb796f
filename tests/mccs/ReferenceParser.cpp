#include "mccs/ReferenceParser.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utf8proc.h>
#include <vector>

#include "support/Characters.h"

namespace vantrel::test {
namespace {

using Characters = std::vector<std::string>;

std::string joined(const Characters& characters) {
    return std::accumulate(characters.begin(), characters.end(), std::string());
}

std::vector<utf8proc_int32_t> codePoints(const std::string& text) {
    std::vector<utf8proc_int32_t> result;
    std::size_t index = 0;
    while (index < text.size()) {
        utf8proc_int32_t codePoint = 0;
        const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data() + index);
        index += static_cast<std::size_t>(
            utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size() - index), &codePoint));
        result.push_back(codePoint);
    }
    return result;
}

std::string lowered(const std::string& character) {
    std::string result;
    for (const utf8proc_int32_t codePoint : codePoints(character)) {
        std::array<utf8proc_uint8_t, 4> bytes{};
        const auto length = utf8proc_encode_char(utf8proc_tolower(codePoint), bytes.data());
        result.append(bytes.begin(), bytes.begin() + length);
    }
    return result;
}

bool isLetter(const std::string& character) {
    return utf8proc_category_string(codePoints(character).front())[0] == 'L';
}

std::optional<Characters> section(const std::string& name, const Characters& text) {
    const Characters needle = characters(name + "(");
    Characters lower;
    for (const std::string& character : text) lower.push_back(lowered(character));
    for (std::size_t start = 0; start + needle.size() <= text.size(); ++start) {
        if (start > 0 && (isLetter(text[start - 1]) || text[start - 1] == "_")) continue;
        const auto from = lower.begin() + static_cast<std::ptrdiff_t>(start);
        if (!std::equal(needle.begin(), needle.end(), from)) continue;
        Characters contents;
        int depth = 1;
        for (std::size_t index = start + needle.size(); index < text.size(); ++index) {
            if (text[index] == "(") depth += 1;
            if (text[index] == ")") depth -= 1;
            if (depth == 0) break;
            contents.push_back(text[index]);
        }
        return contents;
    }
    return std::nullopt;
}

struct VCPParse {
    std::string token;
    bool insideList = false;
    bool inValues = false;
    std::vector<std::uint16_t> currentValues;
    std::optional<std::uint8_t> lastCode;
    std::vector<std::uint8_t> codes;
    std::map<std::uint8_t, std::vector<std::uint16_t>> values;

    void flushToken() {
        std::string digits = token;
        token.clear();
        if (digits.empty()) return;
        digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
        if (digits.size() > 4) return;
        const auto number = static_cast<std::uint16_t>(std::stoul(digits, nullptr, 16));
        if (inValues) {
            currentValues.push_back(number);
        } else if (number < 256) {
            const auto code = static_cast<std::uint8_t>(number);
            if (std::count(codes.begin(), codes.end(), code) == 0) codes.push_back(code);
            lastCode = code;
        }
    }

    void read(const std::string& character) {
        constexpr std::string_view digits = "0123456789abcdefABCDEF";
        if (character == "(") {
            flushToken();
            insideList = inValues = true;
            currentValues.clear();
        } else if (character == ")") {
            flushToken();
            if (insideList && lastCode && !currentValues.empty()) values[*lastCode] = currentValues;
            inValues = insideList = false;
        } else if (character.size() == 1 && digits.find(character[0]) != std::string_view::npos) {
            token += character;
            if (!insideList && token.size() == 2) flushToken();
        } else {
            flushToken();
        }
    }
};

}  // namespace

std::optional<mccs::MonitorCapabilities> parseByTheBook(const std::string& text) {
    const std::optional<Characters> model = section("model", characters(text));
    const std::optional<Characters> vcp = section("vcp", characters(text));
    if (!vcp) return std::nullopt;
    VCPParse parse;
    for (const std::string& character : *vcp) parse.read(character);
    parse.flushToken();
    if (parse.codes.empty()) return std::nullopt;
    mccs::MonitorCapabilities result;
    result.raw = text;
    if (model) result.model = joined(*model);
    result.codes = parse.codes;
    result.values = parse.values;
    return result;
}

}  // namespace vantrel::test
