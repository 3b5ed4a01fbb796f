// The user's settings.
#pragma once
#import <Foundation/NSData.h>
#import <Foundation/NSNotification.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (instancetype)init;
- (nullable instancetype)initWithSuiteName:(nullable NSString*)suite NS_DESIGNATED_INITIALIZER;
- (nullable id)objectForKey:(NSString*)key;
- (void)setObject:(nullable id)value forKey:(NSString*)key;
- (void)removeObjectForKey:(NSString*)key;
- (nullable NSString*)stringForKey:(NSString*)key;
- (nullable NSArray*)arrayForKey:(NSString*)key;
- (nullable NSDictionary<NSString*, id>*)dictionaryForKey:(NSString*)key;
- (nullable NSData*)dataForKey:(NSString*)key;
- (NSInteger)integerForKey:(NSString*)key;
- (float)floatForKey:(NSString*)key;
- (double)doubleForKey:(NSString*)key;
- (BOOL)boolForKey:(NSString*)key;
- (void)setInteger:(NSInteger)value forKey:(NSString*)key;
- (void)setFloat:(float)value forKey:(NSString*)key;
- (void)setDouble:(double)value forKey:(NSString*)key;
- (void)setBool:(BOOL)value forKey:(NSString*)key;
- (void)registerDefaults:(NSDictionary<NSString*, id>*)defaults;
- (NSDictionary<NSString*, id>*)dictionaryRepresentation;
- (nullable NSDictionary<NSString*, id>*)persistentDomainForName:(NSString*)domain;
- (BOOL)synchronize;
@end

FOUNDATION_EXPORT NSNotificationName const NSUserDefaultsDidChangeNotification;

NS_ASSUME_NONNULL_END
