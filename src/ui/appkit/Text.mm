#include "ui/appkit/Text.h"

namespace vantrel::appkit {

NSString* textOf(const std::string& utf8) {
    NSString* const text = [[NSString alloc] initWithBytes:utf8.data()
                                                    length:utf8.size()
                                                  encoding:NSUTF8StringEncoding];
    return text != nil ? text : @"";
}

std::string utf8Of(NSString* text) {
    NSData* const bytes = [text dataUsingEncoding:NSUTF8StringEncoding];
    return bytes != nil ? std::string(static_cast<const char*>(bytes.bytes), bytes.length) : std::string();
}

}  // namespace vantrel::appkit
