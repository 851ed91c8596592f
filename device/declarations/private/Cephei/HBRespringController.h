#pragma once

#import <Foundation/Foundation.h>

@interface HBRespringController : NSObject
+ (void)respringAndReturnTo:(NSURL*)returnURL;
@end
