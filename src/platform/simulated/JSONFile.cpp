#include "platform/simulated/JSONFile.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>
#include <system_error>

#include "platform/simulated/JSONText.h"

namespace vantrel::simulated::JSONFile {
namespace {

FileError systemError(std::string file, int number) {
    return {std::move(file), "", std::generic_category().message(number)};
}

}  // namespace

std::variant<std::string, FileError> contents(const std::filesystem::path& path) {
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
        return FileError{name, "", "is larger than " + std::to_string(maximumBytes) + " bytes"};
    }
    return text;
}

std::optional<FileError> read(std::string_view text, std::string_view file,
                              const std::function<void(const JSONPlace&)>& reader) {
    auto parsed = JSONText::parse(text);
    if (const auto* mistake = std::get_if<Mistake>(&parsed)) {
        return FileError{std::string(file), mistake->place, mistake->reason};
    }
    std::optional<Mistake> mistake;
    reader(JSONPlace(std::get<nlohmann::json>(parsed), mistake));
    if (mistake) return FileError{std::string(file), mistake->place, mistake->reason};
    return std::nullopt;
}

}  // namespace vantrel::simulated::JSONFile
