#include "platform/macos/MacScheduler.h"

#include <cstddef>
#include <pthread.h>
#include <pthread/qos.h>
#include <utility>

namespace vantrel::macos {
namespace {

// With the NUL at its end a name takes 64 bytes; a longer one is refused.
constexpr std::size_t longestName = 63;

qos_class_t classOf(runtime::QualityOfService quality) {
    switch (quality) {
        case runtime::QualityOfService::userInitiated:
            return QOS_CLASS_USER_INITIATED;
    }
    return QOS_CLASS_DEFAULT;
}

// Only the thread itself can be given either.
std::function<void()> withNameAndQuality(const std::string& name, runtime::QualityOfService quality,
                                         std::function<void()> body) {
    return [shortName = name.substr(0, longestName), quality, body = std::move(body)] {
        pthread_setname_np(shortName.c_str());
        pthread_set_qos_class_self_np(classOf(quality), 0);
        body();
    };
}

}  // namespace

void MacScheduler::startThread(std::string name, runtime::QualityOfService quality,
                               std::function<void()> body) {
    auto named = withNameAndQuality(name, quality, std::move(body));
    inner_.startThread(std::move(name), quality, std::move(named));
}

void MacScheduler::startServant(std::string name, runtime::QualityOfService quality,
                                std::function<void()> body, std::function<void()> end) {
    auto named = withNameAndQuality(name, quality, std::move(body));
    inner_.startServant(std::move(name), quality, std::move(named), std::move(end));
}

}  // namespace vantrel::macos
