#include "runtime/Fatal.h"

#include <cstdio>
#include <cstdlib>

namespace vantrel::runtime {

void fatal(std::string_view what) {
    std::fprintf(stderr, "vantrel: broken invariant: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

}  // namespace vantrel::runtime
