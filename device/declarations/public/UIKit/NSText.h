#pragma once

#import <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, NSTextAlignment) {
  NSTextAlignmentLeft = 0,
  NSTextAlignmentCenter = 1,
  NSTextAlignmentRight = 2,
};
