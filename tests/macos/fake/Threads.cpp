#include "macos/fake/Threads.h"

#include <cerrno>

namespace vantrel::macos::fake {
namespace {

thread_local ThreadTraits traits;

}  // namespace

const ThreadTraits& threadTraits() { return traits; }

}  // namespace vantrel::macos::fake

int pthread_setname_np(const char* name) {
    const std::string given(name);
    if (given.size() > 63) return ENAMETOOLONG;
    vantrel::macos::fake::traits.name = given;
    return 0;
}

extern "C" int pthread_set_qos_class_self_np(qos_class_t quality, int priority) {
    vantrel::macos::fake::traits.quality = quality;
    vantrel::macos::fake::traits.priority = priority;
    return 0;
}
