#pragma once

#import <CoreFoundation/CoreFoundation.h>

/// The answer, which the caller owns; null when there is none.
extern "C" CFTypeRef MGCopyAnswer(CFStringRef question, CFDictionaryRef options);
