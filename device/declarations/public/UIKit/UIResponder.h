#pragma once

#import <Foundation/Foundation.h>

@interface UIResponder : NSObject
@end
