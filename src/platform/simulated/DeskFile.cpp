#include "platform/simulated/DeskFile.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>
#include <system_error>

#include "platform/simulated/DeskReader.h"
#include "platform/simulated/JSONText.h"

namespace vantrel::simulated::DeskFile {
namespace {

DeskFileError systemError(std::string file, int number) {
    return {std::move(file), "", std::generic_category().message(number)};
}

}  // namespace

DeskFileResult readText(std::string_view text, std::string_view file) {
    auto parsed = JSONText::parse(text);
    if (const auto* mistake = std::get_if<Mistake>(&parsed)) {
        return DeskFileError{std::string(file), mistake->place, mistake->reason};
    }
    std::optional<Mistake> mistake;
    const JSONPlace root(std::get<nlohmann::json>(parsed), mistake);
    Desk desk = DeskReader::read(root);
    if (mistake) return DeskFileError{std::string(file), mistake->place, mistake->reason};
    return desk;
}

DeskFileResult readFile(const std::filesystem::path& path) {
    const std::string name = path.string();
    std::error_code ignored;
    // Opening a directory succeeds on some systems.
    if (std::filesystem::is_directory(path, ignored)) return systemError(name, EISDIR);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(name.c_str(), "rb"), &std::fclose);
    if (!file) return systemError(name, errno);

    std::string text(maximumBytes + 1, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), file.get()));
    if (std::ferror(file.get()) != 0) return systemError(name, errno);
    if (text.size() > maximumBytes) {
        return DeskFileError{name, "", "is larger than " + std::to_string(maximumBytes) + " bytes"};
    }
    return readText(text, name);
}

std::vector<Words> vocabulary() { return DeskReader::vocabulary(); }

}  // namespace vantrel::simulated::DeskFile
