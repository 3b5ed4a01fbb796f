#include "platform/macos/MacLocalizer.h"

#include <CoreFoundation/CoreFoundation.h>

#include "platform/macos/CFText.h"

namespace vantrel::macos {

std::string MacLocalizer::shown(const text::Text& text) {
    if (text.isVerbatim()) return text.english();
    const CFBundleRef bundle = CFBundleGetMainBundle();
    const auto key = CFText::make(text.key());
    if (bundle == nullptr || !key) return text.english();
    const CFHandle pattern(CFBundleCopyLocalizedString(bundle, key.get(), key.get(), nullptr));
    return pattern ? text.filled(CFText::read(pattern.get())) : text.english();
}

}  // namespace vantrel::macos
