// Stand-in for the platform's header of this name.
#pragma once

#define kIOServicePlane "IOService"
