// Stand-in for the platform's header of this name, as C and C++ see it.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef struct os_log_s* os_log_t;

typedef uint8_t os_log_type_t;
enum : os_log_type_t {
    OS_LOG_TYPE_DEFAULT = 0x00,
    OS_LOG_TYPE_INFO = 0x01,
    OS_LOG_TYPE_DEBUG = 0x02,
    OS_LOG_TYPE_ERROR = 0x10,
    OS_LOG_TYPE_FAULT = 0x11,
};

// The same log again for the same names; never freed.
os_log_t os_log_create(const char* subsystem, const char* category);

// On the platform the compiler encodes the arguments, and only clang can. Elsewhere
// a function takes their place; it knows the one format that is used here.
#ifdef __APPLE__
extern void* _Nonnull __dso_handle;
void _os_log_impl(void* dso, os_log_t log, os_log_type_t type, const char* format, uint8_t* buffer,
                  uint32_t size);
#define os_log_with_type(log, type, format, ...)                                               \
    __extension__({                                                                            \
        __attribute__((aligned(16)))                                                           \
        uint8_t _os_log_buffer[__builtin_os_log_format_buffer_size(format, ##__VA_ARGS__)];    \
        _os_log_impl(&__dso_handle, (log), (type), format,                                     \
                     (uint8_t*)__builtin_os_log_format(_os_log_buffer, format, ##__VA_ARGS__), \
                     (uint32_t)sizeof(_os_log_buffer));                                        \
    })
#else
void _os_log_standin(os_log_t log, os_log_type_t type, const char* format, const char* text);
#define os_log_with_type(log, type, format, text) _os_log_standin((log), (type), format, text)
#endif

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
