#include "platform/linux/OutputSwitch.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/linux/Connector.h"

namespace vantrel::linux {

using platform::LogLevel;
using Output = Desktop::Output;

namespace {

const Output* find(const std::vector<Output>& outputs, const std::string& name) {
    const auto found = std::find_if(outputs.begin(), outputs.end(),
                                    [&name](const Output& output) { return output.name == name; });
    return found != outputs.end() ? &*found : nullptr;
}

bool isLit(const std::vector<Output>& outputs, const std::string& name) {
    const Output* output = find(outputs, name);
    return output != nullptr && output->isLit;
}

bool isConnected(const std::vector<Output>& outputs, const std::string& name) {
    const Output* output = find(outputs, name);
    return output != nullptr && output->isConnected;
}

std::optional<Desktop::Arrangement> noted(const SessionMemory::Notes& notes, const std::string& output) {
    const auto found = notes.find(output);
    if (found == notes.end() || found->second.empty()) return std::nullopt;
    return found->second;
}

}  // namespace

OutputSwitch::OutputSwitch(Desktop& desktop, Session& session, SessionMemory& memory, OutputGuard* guard,
                           platform::Log log)
    : desktop_(desktop), session_(session), memory_(memory), guard_(guard), log_(log) {}

bool OutputSwitch::darken(const std::string& output) {
    const std::vector<Output> outputs = desktop_.outputs();
    if (find(outputs, output) == nullptr) return false;
    if (!isLit(outputs, output)) return true;
    if (!canAnyBeSeen(outputs, output)) {
        log(LogLevel::error, output + ": not turned off, it is the last output that can be seen");
        return false;
    }
    const Desktop::Arrangement arrangement = desktop_.arrangement(output).value_or("");
    if (!prepare(output, arrangement)) return false;
    if (!desktop_.darken(output)) {
        log(LogLevel::error, output + ": " + desktop_.name() + " refused to turn it off");
        if (isLit(desktop_.outputs(), output)) memory_.forgetDarkened(output);
        return false;
    }
    // Another process that changed the memory at the same moment may have lost the note.
    if (!memory_.darkened().contains(output) && !prepare(output, arrangement)) {
        desktop_.light(output, arrangement);
        return false;
    }
    // Others may have gone dark meanwhile.
    keepLight();
    return !isLit(desktop_.outputs(), output);
}

bool OutputSwitch::prepare(const std::string& output, const Desktop::Arrangement& arrangement) {
    memory_.noteDarkened(output, arrangement);
    if (guard_ != nullptr && guard_->post()) return true;
    log(LogLevel::error, output + ": not turned off, nobody could be had to guard the others");
    memory_.forgetDarkened(output);
    return false;
}

bool OutputSwitch::light(const std::string& output) {
    const auto arrangement = noted(memory_.darkened(), output);
    const bool isDone = isLit(desktop_.outputs(), output) || desktop_.light(output, arrangement);
    if (!isDone) log(LogLevel::error, output + ": " + desktop_.name() + " refused to turn it on");
    // Taken isn't done yet.
    if (isLit(desktop_.outputs(), output)) {
        memory_.forgetDarkened(output);
        seenDark_.erase(output);
    }
    return isDone;
}

void OutputSwitch::takeOver() {
    if (guard_ != nullptr && !isIdle()) guard_->post();
}

bool OutputSwitch::keepLight() {
    const SessionMemory::Notes darkened = memory_.darkened();
    if (darkened.empty()) return true;
    const std::vector<Output> outputs = desktop_.outputs();
    forgetLit(darkened, outputs);
    if (canAnyBeSeen(outputs)) return true;
    for (const auto& [name, arrangement] : darkened) {
        if (!isConnected(outputs, name) || isLit(outputs, name)) continue;
        log(LogLevel::standard, name + ": turned on again, nothing else can be seen");
        light(name);
    }
    const std::vector<Output> now = desktop_.outputs();
    return canAnyBeSeen(now) || std::none_of(darkened.begin(), darkened.end(), [&now](const auto& note) {
               return isConnected(now, note.first) && !isLit(now, note.first);
           });
}

void OutputSwitch::forgetLit(const SessionMemory::Notes& darkened, const std::vector<Output>& outputs) {
    std::set<std::string> dark;
    for (const auto& [name, arrangement] : darkened) {
        if (!isLit(outputs, name)) {
            dark.insert(name);
        } else if (guard_ != nullptr || seenDark_.contains(name)) {
            memory_.forgetDarkened(name);
        }
    }
    seenDark_ = std::move(dark);
}

bool OutputSwitch::canBeSeen(const Output& output) {
    if (!output.isLit || !output.isConnected) return false;
    return !Connector::isBuiltIn(output.name) || !session_.isLidClosed();
}

bool OutputSwitch::canAnyBeSeen(const std::vector<Output>& outputs, const std::string& except) {
    return std::any_of(outputs.begin(), outputs.end(), [this, &except](const Output& output) {
        return output.name != except && canBeSeen(output);
    });
}

void OutputSwitch::log(LogLevel level, const std::string& message) const {
    log_.write(platform::Log::display, level, message);
}

}  // namespace vantrel::linux
