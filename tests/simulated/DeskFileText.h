// Short desk files for the tests: a desk with one monitor and what a test adds.
#pragma once

#include <string>

#include "platform/simulated/DeskFile.h"

namespace vantrel::simulated {

// `fields` begin with a comma, e.g. `, "serial": 7`.
inline std::string deskWith(const std::string& displayFields, const std::string& deskFields = "") {
    return R"({"title": "T", "displays": [{"id": 2, "name": "M", "vendor": 1, "product": 2)" + displayFields +
           "}]" + deskFields + "}";
}

inline std::string deskWithMonitor(const std::string& fields) {
    return deskWith(R"(, "monitor": {)" + fields + "}");
}

inline std::string deskWithPersonality(const std::string& fields) {
    return deskWithMonitor(R"("personality": {)" + fields + "}");
}

// The desk, or a desk without displays after a mistake, whose line becomes its title.
inline Desk readDeskText(const std::string& text) {
    DeskFileResult result = DeskFile::readText(text, "x.json");
    if (const auto* error = std::get_if<DeskFileError>(&result)) {
        Desk desk;
        desk.title = error->line();
        return desk;
    }
    return std::get<Desk>(std::move(result));
}

// The mistake's line, or nothing when the text is a desk.
inline std::string mistakeIn(const std::string& text) {
    const DeskFileResult result = DeskFile::readText(text, "x.json");
    const auto* error = std::get_if<DeskFileError>(&result);
    return error == nullptr ? "" : error->line();
}

}  // namespace vantrel::simulated
