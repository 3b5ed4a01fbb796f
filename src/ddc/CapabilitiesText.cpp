#include "ddc/CapabilitiesText.h"

#include "text/UTF8.h"

namespace vantrel::ddc {

std::string capabilitiesText(std::string_view bytes) {
    std::string kept(bytes);
    std::erase(kept, '\0');
    return text::repairedUTF8(kept);
}

}  // namespace vantrel::ddc
