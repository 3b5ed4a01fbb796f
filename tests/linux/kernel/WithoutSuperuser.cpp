#include "linux/kernel/WithoutSuperuser.h"

#include <array>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "runtime/Fatal.h"

namespace vantrel::test {

void withoutSuperuser() {
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> rights{};
    runtime::require(::syscall(SYS_capget, &header, rights.data()) == 0, "a thread's rights can't be read");
    constexpr __u32 every = (1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH);
    rights[0].effective &= ~every;
    // What root is permitted is what access() asks for.
    rights[0].permitted &= ~every;
    runtime::require(::syscall(SYS_capset, &header, rights.data()) == 0, "a right can't be given up");
}

}  // namespace vantrel::test
