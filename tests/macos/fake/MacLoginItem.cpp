#include "platform/macos/MacLoginItem.h"

#include "macos/fake/FakeMac.h"

namespace vantrel::macos {

bool MacLoginItem::isEnabled() const { return fake::FakeMac::current().desk().loginItem.isEnabled(); }
std::optional<std::string> MacLoginItem::enable() {
    return fake::FakeMac::current().desk().loginItem.enable();
}
std::optional<std::string> MacLoginItem::disable() {
    return fake::FakeMac::current().desk().loginItem.disable();
}

}  // namespace vantrel::macos
