// Languages and regions.
#pragma once
#import <Foundation/NSNotification.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSLocale : NSObject <NSCopying, NSSecureCoding>
@property(class, readonly, copy) NSLocale* currentLocale;
@property(class, readonly, strong) NSLocale* autoupdatingCurrentLocale;
@property(class, readonly, copy) NSArray<NSString*>* preferredLanguages;
+ (instancetype)localeWithLocaleIdentifier:(NSString*)identifier;
@property(readonly, copy) NSString* localeIdentifier;
@property(readonly, copy) NSString* languageCode;
@end

FOUNDATION_EXPORT NSNotificationName const NSCurrentLocaleDidChangeNotification;

NS_ASSUME_NONNULL_END
