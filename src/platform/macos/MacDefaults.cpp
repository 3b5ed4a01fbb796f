#include "platform/macos/MacDefaults.h"

#include <CoreFoundation/CoreFoundation.h>

#include "platform/macos/CFDefaultsValue.h"
#include "platform/macos/CFText.h"

namespace vantrel::macos {

std::optional<platform::DefaultsValue> MacDefaults::value(const std::string& key) {
    const auto name = CFText::make(key);
    if (!name) return std::nullopt;
    const CFHandle object(CFPreferencesCopyAppValue(name.get(), kCFPreferencesCurrentApplication));
    return object ? CFDefaultsValue::read(object.get()) : std::nullopt;
}

void MacDefaults::set(const std::string& key, platform::DefaultsValue value) {
    const auto name = CFText::make(key);
    const auto object = CFDefaultsValue::make(value);
    // Setting null would take the old value away.
    if (!name || !object) return logFailure(key);
    CFPreferencesSetAppValue(name.get(), object.get(), kCFPreferencesCurrentApplication);
}

void MacDefaults::remove(const std::string& key) {
    const auto name = CFText::make(key);
    if (!name) return logFailure(key);
    CFPreferencesSetAppValue(name.get(), nullptr, kCFPreferencesCurrentApplication);
}

void MacDefaults::logFailure(const std::string& key) const {
    log_.write(platform::Log::display, platform::LogLevel::error,
               "the setting " + key + " can't be changed: the system makes no object for it");
}

}  // namespace vantrel::macos
