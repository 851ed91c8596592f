#pragma once

#import <Foundation/Foundation.h>

@interface HBPreferences : NSObject
- (instancetype)initWithIdentifier:(NSString*)identifier;
@property(nonatomic, retain, readonly) NSString* identifier;
- (id)objectForKey:(NSString*)key;
- (void)setObject:(id)value forKey:(NSString*)key;
- (void)removeAllObjects;
@end
