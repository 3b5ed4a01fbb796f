// A menu-bar program as small as one can be. The link check is developed and tested with it.
#import <AppKit/AppKit.h>
#include <IOKit/IOKitLib.h>
#import <ServiceManagement/ServiceManagement.h>
#include <string>
#include <utf8proc.h>

@interface SampleDelegate : NSObject <NSApplicationDelegate>
@property(nonatomic, strong, nullable) NSStatusItem* item;
@end

@implementation SampleDelegate
- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    self.item = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
    const std::string text = "x" + std::string(utf8proc_version());
    if (NSString* title = [NSString stringWithUTF8String:text.c_str()]) self.item.button.title = title;
    if (SMAppService.mainAppService.status == SMAppServiceStatusEnabled) IOObjectRelease(IO_OBJECT_NULL);
    if (@available(macOS 14.0, *)) [NSApp activate];
}
@end

int main() {
    @autoreleasepool {
        SampleDelegate* delegate = [SampleDelegate new];
        NSApplication.sharedApplication.delegate = delegate;
        [NSApp run];
    }
}
