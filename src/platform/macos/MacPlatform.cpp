#include "platform/macos/MacPlatform.h"

namespace vantrel::macos {

MacPlatform::MacPlatform(runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop)
    : scheduler_(scheduler), mainLoop_(mainLoop), displays_(mainLoop) {}

platform::Platform MacPlatform::platform(platform::LogSink& sink, platform::Defaults& defaults) {
    return {scheduler_, mainLoop_,  displays_,  registry_,  functions_, baseTables_,
            defaults,   workspace_, localizer_, loginItem_, obstacles_, platform::Log(sink)};
}

}  // namespace vantrel::macos
