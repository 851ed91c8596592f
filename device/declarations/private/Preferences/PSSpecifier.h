#pragma once

#import <Foundation/Foundation.h>
#import <Preferences/PSTableCell.h>

@interface PSSpecifier : NSObject
+ (instancetype)preferenceSpecifierNamed:(NSString*)identifier
                                  target:(id)target
                                     set:(SEL)set
                                     get:(SEL)get
                                  detail:(Class)detail
                                    cell:(PSCellType)cellType
                                    edit:(Class)edit;
+ (instancetype)groupSpecifierWithName:(NSString*)name;
- (id)propertyForKey:(NSString*)key;
- (void)setProperty:(id)property forKey:(NSString*)key;
@end
