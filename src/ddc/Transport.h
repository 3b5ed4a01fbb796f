// What a channel takes of the platform: time, the way to find its monitor again,
// the I2C functions and the log. The platform outlives every channel.
#pragma once

#include "platform/Platform.h"

namespace vantrel::ddc {

struct Transport {
    explicit Transport(platform::Platform& platform)
        : clock(platform.scheduler),
          registry(platform.registry),
          functions(platform.functions),
          log(platform.log) {}
    Transport(runtime::Clock& clock, platform::Registry& registry, platform::PrivateFunctions& functions,
              platform::Log log)
        : clock(clock), registry(registry), functions(functions), log(log) {}

    runtime::Clock& clock;
    platform::Registry& registry;
    platform::PrivateFunctions& functions;
    platform::Log log;
};

}  // namespace vantrel::ddc
