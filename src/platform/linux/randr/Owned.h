// What the X server answered; null when it refused or has gone.
#pragma once

#include <cstdlib>
#include <memory>

namespace vantrel::randr {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

}  // namespace vantrel::randr
