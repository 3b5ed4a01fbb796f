// Arrays, dictionaries, sets, index sets, weak tables and the null object.
#pragma once
#import <Foundation/NSGeometry.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSIndexSet, NSEnumerator<ObjectType>, NSSortDescriptor;

typedef struct {
    unsigned long state;
    id __unsafe_unretained _Nullable* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

typedef NSComparisonResult (^NSComparator)(id obj1, id obj2);
typedef NS_OPTIONS(NSUInteger, NSEnumerationOptions) {
    NSEnumerationConcurrent = (1UL << 0),
    NSEnumerationReverse = (1UL << 1),
};

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)length;
@end

@interface NSEnumerator<ObjectType> : NSObject <NSFastEnumeration>
- (nullable ObjectType)nextObject;
@property(readonly, copy) NSArray<ObjectType>* allObjects;
@end

@interface NSNull : NSObject <NSCopying, NSSecureCoding>
+ (NSNull*)null;
@end

@interface NSArray<__covariant ObjectType>
    : NSObject <NSCopying, NSMutableCopying, NSSecureCoding, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (ObjectType)objectAtIndex:(NSUInteger)index;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                          count:(NSUInteger)count NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
+ (instancetype)array;
+ (instancetype)arrayWithObject:(ObjectType)object;
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nonnull])objects count:(NSUInteger)count;
+ (instancetype)arrayWithObjects:(ObjectType)first, ... NS_REQUIRES_NIL_TERMINATION;
+ (instancetype)arrayWithArray:(NSArray<ObjectType>*)array;
- (NSArray<ObjectType>*)arrayByAddingObject:(ObjectType)object;
- (NSArray<ObjectType>*)arrayByAddingObjectsFromArray:(NSArray<ObjectType>*)other;
- (NSString*)componentsJoinedByString:(NSString*)separator;
- (BOOL)containsObject:(ObjectType)object;
- (NSUInteger)indexOfObject:(ObjectType)object;
- (NSUInteger)indexOfObjectIdenticalTo:(ObjectType)object;
- (BOOL)isEqualToArray:(NSArray<ObjectType>*)other;
@property(nullable, nonatomic, readonly) ObjectType firstObject;
@property(nullable, nonatomic, readonly) ObjectType lastObject;
- (NSEnumerator<ObjectType>*)objectEnumerator;
- (NSEnumerator<ObjectType>*)reverseObjectEnumerator;
- (NSArray<ObjectType>*)sortedArrayUsingSelector:(SEL)comparator;
- (NSArray<ObjectType>*)sortedArrayUsingComparator:(NSComparator NS_NOESCAPE)comparator;
- (NSArray<ObjectType>*)subarrayWithRange:(NSRange)range;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)index;
- (void)enumerateObjectsUsingBlock:(void(NS_NOESCAPE ^)(ObjectType object, NSUInteger index, BOOL* stop))
                                       block;
- (NSUInteger)indexOfObjectPassingTest:(BOOL(NS_NOESCAPE ^)(ObjectType object, NSUInteger index, BOOL* stop))
                                           predicate;
- (void)makeObjectsPerformSelector:(SEL)selector;
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
- (void)addObject:(ObjectType)object;
- (void)insertObject:(ObjectType)object atIndex:(NSUInteger)index;
- (void)removeLastObject;
- (void)removeObjectAtIndex:(NSUInteger)index;
- (void)replaceObjectAtIndex:(NSUInteger)index withObject:(ObjectType)object;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCapacity:(NSUInteger)capacity NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
+ (instancetype)arrayWithCapacity:(NSUInteger)capacity;
- (void)addObjectsFromArray:(NSArray<ObjectType>*)other;
- (void)removeAllObjects;
- (void)removeObject:(ObjectType)object;
- (void)removeObjectIdenticalTo:(ObjectType)object;
- (void)setArray:(NSArray<ObjectType>*)other;
- (void)setObject:(ObjectType)object atIndexedSubscript:(NSUInteger)index;
@end

@interface NSDictionary<__covariant KeyType, __covariant ObjectType>
    : NSObject <NSCopying, NSMutableCopying, NSSecureCoding, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (nullable ObjectType)objectForKey:(KeyType)key;
- (NSEnumerator<KeyType>*)keyEnumerator;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                        forKeys:(const KeyType<NSCopying> _Nonnull[_Nullable])keys
                          count:(NSUInteger)count NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(readonly, copy) NSArray<KeyType>* allKeys;
@property(readonly, copy) NSArray<ObjectType>* allValues;
- (BOOL)isEqualToDictionary:(NSDictionary<KeyType, ObjectType>*)other;
- (nullable ObjectType)objectForKeyedSubscript:(KeyType)key;
- (void)enumerateKeysAndObjectsUsingBlock:(void(NS_NOESCAPE ^)(KeyType key, ObjectType object, BOOL* stop))
                                              block;
+ (instancetype)dictionary;
+ (instancetype)dictionaryWithObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
+ (instancetype)dictionaryWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                              forKeys:(const KeyType<NSCopying> _Nonnull[_Nullable])keys
                                count:(NSUInteger)count;
+ (instancetype)dictionaryWithDictionary:(NSDictionary<KeyType, ObjectType>*)other;
@end

@interface NSMutableDictionary<KeyType, ObjectType> : NSDictionary <KeyType, ObjectType>
- (void)removeObjectForKey:(KeyType)key;
- (void)setObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCapacity:(NSUInteger)capacity NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
+ (instancetype)dictionaryWithCapacity:(NSUInteger)capacity;
- (void)addEntriesFromDictionary:(NSDictionary<KeyType, ObjectType>*)other;
- (void)removeAllObjects;
- (void)setObject:(nullable ObjectType)object forKeyedSubscript:(KeyType<NSCopying>)key;
@end

@interface NSSet<__covariant ObjectType>
    : NSObject <NSCopying, NSMutableCopying, NSSecureCoding, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (nullable ObjectType)member:(ObjectType)object;
- (NSEnumerator<ObjectType>*)objectEnumerator;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                          count:(NSUInteger)count NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(readonly, copy) NSArray<ObjectType>* allObjects;
- (nullable ObjectType)anyObject;
- (BOOL)containsObject:(ObjectType)object;
- (BOOL)isEqualToSet:(NSSet<ObjectType>*)other;
+ (instancetype)set;
+ (instancetype)setWithObject:(ObjectType)object;
+ (instancetype)setWithObjects:(ObjectType)first, ... NS_REQUIRES_NIL_TERMINATION;
+ (instancetype)setWithArray:(NSArray<ObjectType>*)array;
@end

@interface NSMutableSet<ObjectType> : NSSet <ObjectType>
- (void)addObject:(ObjectType)object;
- (void)removeObject:(ObjectType)object;
- (void)removeAllObjects;
@end

@interface NSIndexSet : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
+ (instancetype)indexSet;
+ (instancetype)indexSetWithIndex:(NSUInteger)value;
+ (instancetype)indexSetWithIndexesInRange:(NSRange)range;
@property(readonly) NSUInteger count;
@property(readonly) NSUInteger firstIndex;
@property(readonly) NSUInteger lastIndex;
- (BOOL)containsIndex:(NSUInteger)value;
- (NSUInteger)indexGreaterThanIndex:(NSUInteger)value;
- (void)enumerateIndexesUsingBlock:(void(NS_NOESCAPE ^)(NSUInteger index, BOOL* stop))block;
@end

typedef NSUInteger NSPointerFunctionsOptions;
typedef NSUInteger NSHashTableOptions;

@interface NSHashTable<ObjectType> : NSObject <NSCopying, NSSecureCoding, NSFastEnumeration>
+ (NSHashTable<ObjectType>*)weakObjectsHashTable;
@property(readonly) NSUInteger count;
- (void)addObject:(nullable ObjectType)object;
- (void)removeObject:(nullable ObjectType)object;
- (BOOL)containsObject:(nullable ObjectType)object;
@property(readonly, copy) NSArray<ObjectType>* allObjects;
@end

@interface NSMapTable<KeyType, ObjectType> : NSObject <NSCopying, NSSecureCoding, NSFastEnumeration>
+ (NSMapTable<KeyType, ObjectType>*)strongToStrongObjectsMapTable;
+ (NSMapTable<KeyType, ObjectType>*)weakToStrongObjectsMapTable;
+ (NSMapTable<KeyType, ObjectType>*)strongToWeakObjectsMapTable;
+ (NSMapTable<KeyType, ObjectType>*)weakToWeakObjectsMapTable;
- (nullable ObjectType)objectForKey:(nullable KeyType)key;
- (void)removeObjectForKey:(nullable KeyType)key;
- (void)setObject:(nullable ObjectType)object forKey:(nullable KeyType)key;
@property(readonly) NSUInteger count;
@end

NS_ASSUME_NONNULL_END
