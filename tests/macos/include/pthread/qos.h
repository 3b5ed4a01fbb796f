// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN

typedef CF_ENUM(unsigned int, qos_class_t) {
    QOS_CLASS_USER_INTERACTIVE = 0x21,
    QOS_CLASS_USER_INITIATED = 0x19,
    QOS_CLASS_DEFAULT = 0x15,
    QOS_CLASS_UTILITY = 0x11,
    QOS_CLASS_BACKGROUND = 0x09,
    QOS_CLASS_UNSPECIFIED = 0x00,
};

int pthread_set_qos_class_self_np(qos_class_t qos_class, int relative_priority);

CF_EXTERN_C_END

// The platform's <pthread.h> declares this one; other systems' function of the same
// name takes the thread too, so here it is an overload. For the Mac it has to be linked
// by its real name.
#ifdef __APPLE__
int pthread_setname_np(const char* name) __asm__("_pthread_setname_np");
#else
int pthread_setname_np(const char* name);
#endif
