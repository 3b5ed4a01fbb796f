#include "platform/linux/ChangeNotice.h"

#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::linux {

ChangeNotice::ChangeNotice(Descriptors& descriptors, std::vector<Desktop::Output> outputs)
    : known_(std::move(outputs)), bell_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    runtime::require(bell_ >= 0, "no file descriptor is left to wait with");
    watch_ = descriptors.watch(bell_, [this] { tell(); });
}

ChangeNotice::~ChangeNotice() {
    watch_.reset();
    ::close(bell_);
}

void ChangeNotice::compare(std::vector<Desktop::Output> outputs) {
    if (outputs == known_) return;
    known_ = std::move(outputs);
    ::eventfd_write(bell_, 1);
}

void ChangeNotice::tell() {
    eventfd_t rings = 0;
    ::eventfd_read(bell_, &rings);
    // The listener may end the desktop.
    if (const auto changed = changed_) changed();
}

}  // namespace vantrel::linux
