#include "mccs/VCPInfo.h"

#include "runtime/Fatal.h"

namespace vantrel::mccs {

std::optional<VCPInfo::Group> VCPInfo::groupFromRawValue(int rawValue) {
    if (rawValue < static_cast<int>(Group::main) || rawValue > static_cast<int>(Group::vendor)) {
        return std::nullopt;
    }
    return static_cast<Group>(rawValue);
}

text::Text VCPInfo::title(Group group) {
    switch (group) {
        case Group::main:
            return text::Text::translated("Main");
        case Group::picture:
            return text::Text::translated("Picture");
        case Group::color:
            return text::Text::translated("Color");
        case Group::audio:
            return text::Text::translated("Audio");
        case Group::system:
            return text::Text::translated("System");
        case Group::info:
            return text::Text::translated("Info");
        case Group::vendor:
            return text::Text::translated("Vendor specific");
    }
    runtime::fatal("a VCP group without a title");
}

}  // namespace vantrel::mccs
