#include "tests/device/doubles/Foundation.h"

#import <objc/message.h>
#include <string_view>

#include "desktop/Foundation/DictionaryBody.h"
#include "desktop/Foundation/PropertyListFile.h"
#include "desktop/Phone.h"
#include "platform/Foundation/NSDictionary.h"
#include "tests/device/doubles/Double.h"

namespace doubles {

namespace {

/// How the journal writes an argument.
platform::Object argument(id object) { return handle(object); }
double argument(NSUInteger number) { return double(number); }

std::string_view nameOf(id receiver) {
  if (object_getClass(receiver) && class_isMetaClass(object_getClass(receiver)))
    return class_getName((Class)receiver);
  for (Class known : {[NSMutableArray class],
                      [NSArray class],
                      [NSMutableDictionary class],
                      [NSDictionary class],
                      [NSString class]}) {
    if ([receiver isKindOfClass:known]) return class_getName(known);
  }
  return object_getClassName(receiver);
}

/// Notes a message and passes it on.
template <class Result, class... Arguments>
Result note(id self, SEL selector, Arguments... arguments) {
  desktop::Phone::current().journal.record(nameOf(self), sel_getName(selector),
                                           {argument(arguments)...});
  const auto method = (Result(*)(id, SEL, Arguments...))objc_msg_lookup(self, selector);
  return method(self, selector, arguments...);
}

/// GNUstep looks through the whole list for each of the objects; long lists take minutes.
void removeAll(NSMutableArray* self, SEL selector, NSArray* removed) {
  desktop::Phone::current().journal.record(nameOf(self), sel_getName(selector), {handle(removed)});
  NSSet* sought = [NSSet setWithArray:removed];
  NSMutableArray* left = [NSMutableArray array];
  for (id each in self) {
    if (![sought containsObject:each]) [left addObject:each];
  }
  [self setArray:left];
}

/// Only the kinds that the bundle's pages tell apart are noted.
BOOL noteKind(id self, SEL selector, Class kind) {
  if (kind == [NSString class] || kind == [NSArray class]) {
    const platform::Object receiver = handle(self);
    desktop::Phone::current().journal.record(desktop::bodyOf(receiver)->className(),
                                             sel_getName(selector), {class_getName(kind)});
  }
  return [self isKindOfClass:kind];
}

/// @name Property-list files are the stand-in's
/// @{
id readFile(id, SEL, NSString* path) {
  return object(
      platform::NSDictionary::dictionaryWithContentsOfFile(handle<platform::NSString>(path)));
}

id initWithFile(id self, SEL, NSString* path) {
  [[self init] release];  // GNUstep frees only what was initialised.
  return [object(platform::NSMutableDictionary::initWithContentsOfFile(
      handle<platform::NSString>(path))) retain];
}

/// The form that a file has, and keeps.
plist::Form formOf(const std::string& path) {
  const auto file = desktop::readPropertyList(desktop::Phone::current().folder, path);
  return file ? file->form : plist::Form::Binary;
}

BOOL writeFile(NSDictionary* self, SEL, NSString* path, BOOL atomically) {
  using desktop::DictionaryBody;
  const platform::Object contents = handle(self);
  desktop::PropertyListFile file = desktop::bodyAs<DictionaryBody>(contents)->file;
  file.form = formOf([path UTF8String]);
  const auto written = desktop::make<platform::NSMutableDictionary, DictionaryBody>(
      std::move(file), DictionaryBody::Mutable::Yes);
  return written.writeToFile(handle<platform::NSString>(path),
                             platform::Atomically(bool(atomically)));
}
/// @}

/// A message that is noted when it goes to an object of this class, or to the class itself.
struct Message {
  const char* className;
  const char* selector;
  IMP method;
};

const Message messages[] = {
    {"NSArray", "count", IMP(&note<NSUInteger>)},
    {"NSArray", "objectAtIndex:", IMP(&note<id, NSUInteger>)},
    {"NSArray", "filteredArrayUsingPredicate:", IMP(&note<id, id>)},
    {"NSArray", "mutableCopy", IMP(&note<id>)},
    {"NSMutableArray", "array", IMP(&note<id>)},
    {"NSMutableArray", "initWithArray:", IMP(&note<id, id>)},
    {"NSMutableArray", "addObject:", IMP(&note<void, id>)},
    {"NSMutableArray", "insertObject:atIndex:", IMP(&note<void, id, NSUInteger>)},
    {"NSMutableArray", "replaceObjectAtIndex:withObject:", IMP(&note<void, NSUInteger, id>)},
    {"NSMutableArray", "removeObject:", IMP(&note<void, id>)},
    {"NSMutableArray", "removeObjectsInArray:", IMP(&removeAll)},
    {"NSMutableArray", "copy", IMP(&note<id>)},
    {"NSDictionary", "dictionaryWithContentsOfFile:", IMP(&readFile)},
    {"NSDictionary", "objectForKey:", IMP(&note<id, id>)},
    {"NSMutableDictionary", "init", IMP(&note<id>)},
    {"NSMutableDictionary", "initWithContentsOfFile:", IMP(&initWithFile)},
    {"NSMutableDictionary", "setObject:forKey:", IMP(&note<void, id, id>)},
    {"NSMutableDictionary", "writeToFile:atomically:", IMP(&writeFile)},
    {"NSString", "stringByDeletingPathExtension", IMP(&note<id>)},
    {"NSPredicate", "predicateWithFormat:", IMP(&note<id, id>)},
    {"NSURL", "URLWithString:", IMP(&note<id, id>)},
    {"NSObject", "isKindOfClass:", IMP(&noteKind)},
};

}  // namespace

IMP recorded(id receiver, SEL selector) {
  const std::string_view name = sel_getName(selector);
  for (const Message& message : messages) {
    Class known = objc_lookUpClass(message.className);
    if (name == message.selector && (receiver == (id)known || [receiver isKindOfClass:known]))
      return message.method;
  }
  return nullptr;
}

}  // namespace doubles
