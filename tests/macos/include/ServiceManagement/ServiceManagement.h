// Stand-in for <ServiceManagement/ServiceManagement.h>.
#pragma once
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, SMAppServiceStatus) {
    SMAppServiceStatusNotRegistered = 0,
    SMAppServiceStatusEnabled = 1,
    SMAppServiceStatusRequiresApproval = 2,
    SMAppServiceStatusNotFound = 3,
} API_AVAILABLE(macos(13.0));

API_AVAILABLE(macos(13.0))
@interface SMAppService : NSObject
+ (instancetype)loginItemServiceWithIdentifier:(NSString*)identifier;
@property(class, readonly) SMAppService* mainAppService;
+ (instancetype)agentServiceWithPlistName:(NSString*)plistName;
+ (instancetype)daemonServiceWithPlistName:(NSString*)plistName;
- (BOOL)registerAndReturnError:(NSError* _Nullable* _Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable* _Nullable)error;
- (void)unregisterWithCompletionHandler:(void (^)(NSError* _Nullable error))handler;
@property(readonly) SMAppServiceStatus status;
+ (SMAppServiceStatus)statusForLegacyURL:(NSURL*)url;
+ (void)openSystemSettingsLoginItems;
@end

NS_ASSUME_NONNULL_END
