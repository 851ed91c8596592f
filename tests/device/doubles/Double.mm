#include "tests/device/doubles/Double.h"

#include <Block.h>
#include <string>
#include <unordered_map>

#include "desktop/Body.h"
#include "tests/device/doubles/Values.h"

namespace doubles {

namespace {

/// Both directions, without retaining the Objective-C object: it takes itself out.
std::unordered_map<id, platform::Object> handles;
std::unordered_map<desktop::Body*, id> objects;

/// Foundation has classes of its own for what the stand-in does: their doubles go by other names.
Class doubleOf(const std::string& className) {
  Class renamed = objc_lookUpClass(("Double" + className).c_str());
  return renamed ? renamed : objc_lookUpClass(className.c_str());
}

id make(const platform::Object& handle) {
  const std::string className(desktop::bodyOf(handle)->className());
  Class known = doubleOf(className);
  if (!known) {
    [NSException raise:NSInternalInconsistencyException
                format:@"There is no double of %s", className.c_str()];
  }
  id object = [NSAllocateObject(known, 0, NSDefaultMallocZone()) autorelease];
  bind(object, handle);
  return object;
}

}  // namespace

void bind(id object, const platform::Object& handle) {
  if (!handles.emplace(object, handle).second ||
      !objects.emplace(desktop::bodyOf(handle), object).second) {
    [NSException raise:NSInternalInconsistencyException
                format:@"%s stands for something already", object_getClassName(object)];
  }
}

void forget(id object) {
  // Taken out before it is let go of, which may make others go.
  const auto gone = handles.extract(object);
  if (gone) objects.erase(desktop::bodyOf(gone.mapped()));
}

platform::Object handle(id object) {
  if (!object) return {};
  const auto found = handles.find(object);
  return found == handles.end() ? valueHandle(object) : found->second;
}

id object(const platform::Object& handle) {
  if (!handle) return nil;
  const auto found = objects.find(desktop::bodyOf(handle));
  if (found != objects.end()) return [[found->second retain] autorelease];
  id value = valueObject(handle);
  return value ? value : make(handle);
}

std::shared_ptr<void> keep(id block) {
  return {_Block_copy(block), [](void* kept) { _Block_release(kept); }};
}

std::size_t count() { return handles.size(); }

id initialised(id self, const platform::Object& made) {
  if (!made) {
    [self release];
    return nil;
  }
  bind(self, made);
  return self;
}

}  // namespace doubles
