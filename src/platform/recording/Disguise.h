// What a report may tell of a display: which kind it is, and not which one of them all.
//
// Serial numbers and what follows vendor and product in a "EDID UUID" become 1, 2, 3 in
// order of appearance; equal ones stay equal, and none or 0 stays what it is. Of the
// registry's properties only those pass that are known to tell no more.
// Threads: any.
#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Registry.h"

namespace vantrel::recording {

class Disguise {
  public:
    std::uint32_t serial(std::uint32_t real);
    // As the registry shows it; nothing: not at all. Texts become valid UTF-8, values of
    // a wrong type monostate.
    std::optional<platform::PropertyValue> property(std::string_view key,
                                                    const platform::PropertyValue& real);

  private:
    std::string edidUUID(const std::string& real);
    platform::PropertyDictionary productAttributes(const platform::PropertyDictionary& real);

    std::mutex mutex_;
    std::map<std::uint32_t, std::uint32_t> serials_;
    std::map<std::string, std::size_t> tails_;
};

}  // namespace vantrel::recording
