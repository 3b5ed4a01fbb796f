#include "platform/macos/MacScreens.h"

#include "macos/fake/FakeMac.h"

namespace vantrel::macos::MacScreens {

std::optional<std::string> name(platform::DisplayID display) {
    return fake::FakeMac::current().desk().displays.screenName(display);
}

}  // namespace vantrel::macos::MacScreens
