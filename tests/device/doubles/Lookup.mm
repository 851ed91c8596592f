/// What the bundle's code finds instead of the run time's own functions: the build renames its
/// references to them, so that a message of the bundle's own can be told from all others.
#import <Foundation/Foundation.h>
#include <dlfcn.h>
#import <objc/message.h>
#include <string>

#include "desktop/Phone.h"
#include "platform/ObjectiveC/Class.h"
#include "platform/dlfcn/dlopen.h"
#include "tests/device/doubles/Double.h"
#include "tests/device/doubles/Foundation.h"

using doubles::handle;

extern "C" {

IMP doubles_objc_msg_lookup(id receiver, SEL selector) {
  IMP method = receiver ? doubles::recorded(receiver, selector) : nullptr;
  return method ? method : objc_msg_lookup(receiver, selector);
}

Class doubles_objc_lookup_class(const char* name) {
  Class renamed = objc_lookUpClass((std::string("Double") + name).c_str());
  return renamed ? renamed : objc_lookUpClass(name);
}

/// Without the phone's word that a library is missing, each of the doubles is there.
Class doubles_objc_getClass(const char* name) {
  return desktop::Phone::current().missingClasses.contains(name) ? Nil : objc_lookUpClass(name);
}

Class doubles_NSClassFromString(NSString* name) {
  return doubles::object(platform::NSClassFromString(handle<platform::NSString>(name)));
}

void* doubles_dlopen(const char* path, int mode) {
  platform::dlopen(platform::NSString(path), platform::DlopenMode(mode));
  return nullptr;
}

}  // extern "C"
