#import <Foundation/Foundation.h>
#import <objc/runtime.h>
#include <vector>

/// GNUstep takes two texts for equal that differ in how their accents are composed. The phone
/// compares them character by character, so here they are compared so as well.
namespace {

BOOL isEqual(NSString* self, SEL, id other) {
  return self == other || ([other isKindOfClass:[NSString class]] &&
                           [self compare:other options:NSLiteralSearch] == NSOrderedSame);
}

void replaceIn(Class known) {
  for (SEL selector : { @selector(isEqual:), @selector(isEqualToString:) }) {
    class_replaceMethod(known, selector, IMP(&isEqual),
                        method_getTypeEncoding(class_getInstanceMethod(known, selector)));
  }
}

bool isText(Class known) {
  for (; known; known = class_getSuperclass(known)) {
    if (known == [NSString class]) return true;
  }
  return false;
}

}  // namespace

@interface LiteralComparison : NSObject
@end

@implementation LiteralComparison
+ (void)load {
  std::vector<Class> classes(std::size_t(objc_getClassList(nullptr, 0)));
  objc_getClassList(classes.data(), int(classes.size()));
  for (Class known : classes) {
    if (isText(known)) replaceIn(known);
  }
}
@end
