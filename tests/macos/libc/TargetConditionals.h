// What the sources are checked for: a Mac, not its simulator or another device.
#pragma once
#define TARGET_OS_MAC 1
#define TARGET_OS_OSX 1
#define TARGET_OS_IPHONE 0
#define TARGET_OS_SIMULATOR 0
#define TARGET_CPU_ARM64 1
#define TARGET_CPU_X86_64 0
