// What an application was shipped with.
#pragma once
#import <Foundation/NSURL.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
+ (nullable instancetype)bundleWithPath:(NSString*)path;
+ (NSBundle*)bundleForClass:(Class)aClass;
@property(readonly, copy) NSURL* bundleURL;
@property(nullable, readonly, copy) NSURL* resourceURL;
@property(nullable, readonly, copy) NSURL* executableURL;
@property(readonly, copy) NSString* bundlePath;
@property(nullable, readonly, copy) NSString* resourcePath;
@property(nullable, readonly, copy) NSString* executablePath;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(nullable, readonly, copy) NSDictionary<NSString*, id>* infoDictionary;
- (nullable id)objectForInfoDictionaryKey:(NSString*)key;
- (nullable NSURL*)URLForResource:(nullable NSString*)name withExtension:(nullable NSString*)extension;
- (nullable NSString*)pathForResource:(nullable NSString*)name ofType:(nullable NSString*)extension;
- (nullable NSString*)pathForResource:(nullable NSString*)name
                               ofType:(nullable NSString*)extension
                          inDirectory:(nullable NSString*)subpath
                      forLocalization:(nullable NSString*)localization;
- (NSString*)localizedStringForKey:(NSString*)key
                             value:(nullable NSString*)value
                             table:(nullable NSString*)table NS_FORMAT_ARGUMENT(1);
@property(readonly, copy) NSArray<NSString*>* preferredLocalizations;
@property(readonly, copy) NSArray<NSString*>* localizations;
@property(nullable, readonly, copy) NSString* developmentLocalization;
@end

#define NSLocalizedString(key, comment) [NSBundle.mainBundle localizedStringForKey:(key) value:@"" table:nil]

NS_ASSUME_NONNULL_END
