#include "platform/posix/AutostartEntry.h"

#include <string_view>
#include <utility>
#include <variant>

#include "platform/posix/StateFile.h"

namespace vantrel::posix {

using text::Text;

namespace {

// A program's path as the one word of a command line (Desktop Entry Specification
// 1.5, "The Exec key"): quoted, and quoted again as a value of the file.
std::string execWord(std::string_view program) {
    std::string word;
    for (const char character : program) {
        if (character == '%') word += '%';
        if (character == '"' || character == '`' || character == '$') word += "\\\\";
        if (character == '\\') word += "\\\\\\";
        word += character;
    }
    return "\"" + word + "\"";
}

std::string entryFor(const std::string& program) {
    return "[Desktop Entry]\nType=Application\nName=Vantrel\nIcon=org.vantrel.Vantrel\nExec=" +
           execWord(program) + "\nX-GNOME-Autostart-enabled=true\n";
}

bool hasLine(std::string_view text, std::string_view line) {
    const std::string lines = "\n" + std::string(text) + "\n";
    return lines.find("\n" + std::string(line) + "\n") != std::string::npos;
}

}  // namespace

AutostartEntry::AutostartEntry(FileSystem& fileSystem, const StateFolder::Environment& environment,
                               platform::Localizer& localizer, std::string program)
    : fileSystem_(fileSystem),
      localizer_(localizer),
      folder_(StateFolder::autostart(environment)),
      program_(std::move(program)) {}

bool AutostartEntry::isEnabled() const {
    if (!folder_) return false;
    const auto reading = StateFile(fileSystem_, *folder_, fileName).read();
    const auto* contents = std::get_if<StateFile::Contents>(&reading);
    // Desktops switch an entry off by marking it, not by taking it away.
    return contents != nullptr && !hasLine(contents->text, "Hidden=true") &&
           !hasLine(contents->text, "X-GNOME-Autostart-enabled=false");
}

std::optional<std::string> AutostartEntry::enable() {
    if (!folder_) return noFolder();
    const auto outcome = StateFile(fileSystem_, *folder_, fileName).replace(entryFor(program_));
    if (const auto* failure = std::get_if<StateFile::Failure>(&outcome)) {
        return localizer_.shown(
            Text::translated("The entry for starting at login can't be written: %@", {failure->why}));
    }
    return std::nullopt;
}

std::optional<std::string> AutostartEntry::disable() {
    if (!folder_) return noFolder();
    const std::string path = StateFile(fileSystem_, *folder_, fileName).path();
    const auto error = fileSystem_.remove(path);
    if (!error || error == std::errc::no_such_file_or_directory) return std::nullopt;
    return localizer_.shown(Text::translated("The entry for starting at login can't be removed: %@",
                                             {path + ": " + error.message()}));
}

std::string AutostartEntry::noFolder() const {
    return localizer_.shown(
        Text::translated("There is no place for an entry for starting at login, because HOME is not set."));
}

}  // namespace vantrel::posix
