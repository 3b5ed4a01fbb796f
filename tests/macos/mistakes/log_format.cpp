// type check: format specifies type
#include <os/log.h>

void write(os_log_t log, const char* text) {
#ifdef MISTAKE
    os_log_with_type(log, OS_LOG_TYPE_ERROR, "%{public}d", text);
#else
    os_log_with_type(log, OS_LOG_TYPE_ERROR, "%{public}s", text);
#endif
}
