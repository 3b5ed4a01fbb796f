#include "platform/simulated/DeskFile.h"

#include "platform/simulated/DeskReader.h"

namespace vantrel::simulated::DeskFile {

DeskFileResult readText(std::string_view text, std::string_view file) {
    Desk desk;
    if (auto error =
            JSONFile::read(text, file, [&desk](const JSONPlace& root) { desk = DeskReader::read(root); })) {
        return *std::move(error);
    }
    return desk;
}

DeskFileResult readFile(const std::filesystem::path& path) {
    auto contents = JSONFile::contents(path);
    if (auto* error = std::get_if<FileError>(&contents)) return std::move(*error);
    return readText(std::get<std::string>(contents), path.string());
}

std::vector<Words> vocabulary() { return DeskReader::vocabulary(); }

}  // namespace vantrel::simulated::DeskFile
