// The unified log.
#include <cstring>
#include <os/log.h>

#include "macos/fake/FakeMac.h"
#include "runtime/Fatal.h"

using vantrel::macos::fake::FakeMac;

extern "C" {

os_log_t os_log_create(const char* subsystem, const char* category) {
    return FakeMac::current().log(subsystem, category);
}

void _os_log_standin(os_log_t log, os_log_type_t type, const char* format, const char* text) {
    vantrel::runtime::require(std::strcmp(format, "%{public}s") == 0, "a line that nobody could read");
    FakeMac::current().write(log, type, text);
}

}  // extern "C"
