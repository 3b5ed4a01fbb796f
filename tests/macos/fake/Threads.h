// What the threads of a Mac were given.
#pragma once

#include <pthread/qos.h>
#include <string>

namespace vantrel::macos::fake {

struct ThreadTraits {
    std::string name;
    qos_class_t quality = QOS_CLASS_UNSPECIFIED;
    int priority = 1;
};

// Of the calling thread.
const ThreadTraits& threadTraits();

}  // namespace vantrel::macos::fake
