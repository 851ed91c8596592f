#import <CoreFoundation/CoreFoundation.h>

// These tests store no preferences.
Boolean CFPreferencesSynchronize(CFStringRef, CFStringRef, CFStringRef) { return true; }
extern const CFStringRef kCFPreferencesAnyHost = CFStringRef(@"kCFPreferencesAnyHost");
