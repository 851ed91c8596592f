#pragma once

#import <CoreGraphics/CGColor.h>
#import <CoreGraphics/CGContext.h>
#import <CoreGraphics/CGGeometry.h>
