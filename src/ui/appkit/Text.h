// Texts between C++ and Objective-C.
// Threads: any.
#pragma once

#import <Foundation/Foundation.h>
#include <string>

namespace vantrel::appkit {

// Empty for bytes that are no UTF-8.
NSString* _Nonnull textOf(const std::string& utf8);
std::string utf8Of(NSString* _Nonnull text);

}  // namespace vantrel::appkit
