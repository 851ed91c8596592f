#pragma once

#import <Preferences/PSSpecifier.h>

/// The class has it, but headers that others have written down often leave it out.
@interface PSSpecifier (Values)
- (void)setValues:(NSArray*)values titles:(NSArray*)titles;
@end
