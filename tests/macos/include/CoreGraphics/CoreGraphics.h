// Stand-in for the platform's header of this name: displays only.
#pragma once

#include <CoreGraphics/CGDirectDisplay.h>
#include <CoreGraphics/CGDisplayConfiguration.h>
#include <CoreGraphics/CGError.h>
