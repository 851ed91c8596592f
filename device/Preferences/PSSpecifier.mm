#include "platform/Preferences/PSSpecifier.h"

#import <Preferences/PSSpecifier+Values.h>
#include <algorithm>
#include <iterator>
#include <string_view>

#include "device/Controller.h"
#include "device/Native.h"
#include "device/Paths.h"
#include "platform/Preferences/PSListController.h"

namespace platform {

using device::handle;
using device::native;
using device::object;

static_assert(long(PSCellType::PSGroupCell) == ::PSGroupCell);
static_assert(long(PSCellType::PSLinkCell) == ::PSLinkCell);
static_assert(long(PSCellType::PSLinkListCell) == ::PSLinkListCell);
static_assert(long(PSCellType::PSListItemCell) == ::PSListItemCell);
static_assert(long(PSCellType::PSTitleValueCell) == ::PSTitleValueCell);
static_assert(long(PSCellType::PSSliderCell) == ::PSSliderCell);
static_assert(long(PSCellType::PSSwitchCell) == ::PSSwitchCell);
static_assert(long(PSCellType::PSStaticTextCell) == ::PSStaticTextCell);
static_assert(long(PSCellType::PSEditTextCell) == ::PSEditTextCell);
static_assert(long(PSCellType::PSSegmentCell) == ::PSSegmentCell);
static_assert(long(PSCellType::PSGiantIconCell) == ::PSGiantIconCell);
static_assert(long(PSCellType::PSGiantCell) == ::PSGiantCell);
static_assert(long(PSCellType::PSSecureEditTextCell) == ::PSSecureEditTextCell);
static_assert(long(PSCellType::PSButtonCell) == ::PSButtonCell);
static_assert(long(PSCellType::PSEditTextViewCell) == ::PSEditTextViewCell);

namespace {

/// The properties that tell a third party's cell where files of the bundle lie.
constexpr std::string_view paths[] = {"bundlePath", "defaultsPath"};

}  // namespace

PSSpecifier PSSpecifier::preferenceSpecifierNamed(const NSString& name, PSListController& target,
                                                  SEL set, SEL get, const Class& detail,
                                                  PSCellType cell, const Class& edit) {
  return handle<PSSpecifier>([::PSSpecifier preferenceSpecifierNamed:native(name)
                                                              target:native(target)
                                                                 set:device::selector(set)
                                                                 get:device::selector(get)
                                                              detail:(::Class)object(detail)
                                                                cell:static_cast<::PSCellType>(cell)
                                                                edit:(::Class)object(edit)]);
}

PSSpecifier PSSpecifier::groupSpecifierWithName(const NSString& name) {
  return handle<PSSpecifier>([::PSSpecifier groupSpecifierWithName:native(name)]);
}

void PSSpecifier::setProperty(const Object& value, const NSString& key) {
  const bool isPath =
      std::find(std::begin(paths), std::end(paths), key.UTF8String()) != std::end(paths);
  [native(*this) setProperty:isPath ? device::resolved(value.as<NSString>()) : object(value)
                      forKey:native(key)];
}

Object PSSpecifier::propertyForKey(const NSString& key) const {
  return handle<Object>([native(*this) propertyForKey:native(key)]);
}

void PSSpecifier::setValues(const NSArray& values, const NSArray& titles) {
  [native(*this) setValues:native(values) titles:native(titles)];
}

}  // namespace platform
