#include "tests/device/doubles/Values.h"

#include <string>
#include <vector>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/DictionaryBody.h"
#include "desktop/Foundation/URLBody.h"
#include "desktop/Foundation/ValueBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/ObjectiveC/ClassBody.h"
#include "tests/device/doubles/Double.h"

namespace doubles {

namespace {

/// An object of which the stand-in knows no more than its class and how it is shown.
class ForeignBody : public desktop::Body {
 public:
  ForeignBody(id object, std::string shown)
      : name_(object_getClassName(object)), shown_(std::move(shown)) {}
  std::string_view className() const override { return name_; }
  std::string description() const override { return shown_; }

 private:
  const char* name_;
  std::string shown_;
};

/// Foundation's implementations write a predicate's words in different cases and quotes.
std::string shown(NSPredicate* predicate) {
  NSComparisonPredicate* comparison = (NSComparisonPredicate*)predicate;
  NSCAssert([comparison predicateOperatorType] == NSEndsWithPredicateOperatorType &&
                ![comparison options],
            @"compares ends exactly");
  return "SELF ENDSWITH \"" +
         std::string([[[comparison rightExpression] constantValue] UTF8String]) + '"';
}

std::string_view bytesOf(NSData* data) {
  return {static_cast<const char*>([data bytes]), [data length]};
}

plist::Value numberValue(NSNumber* number) {
  if (number == [NSNumber numberWithBool:YES]) return plist::Value(true);
  if (number == [NSNumber numberWithBool:NO]) return plist::Value(false);
  switch (*[number objCType]) {
    case 'd':
      return plist::Value::real([number doubleValue]);
    case 'f':
      return plist::Value::real([number floatValue]);
    case 'Q':
      return plist::Value::integer([number unsignedLongLongValue]);
    default:
      return plist::Value::integer([number longLongValue]);
  }
}

platform::Object value(const plist::Value& value) { return desktop::box(value); }

platform::Object arrayHandle(NSArray* array) {
  using desktop::ArrayBody;
  std::vector<platform::Object> elements;
  for (id element in array) elements.push_back(handle(element));
  const bool isMutable = [array isKindOfClass:[NSMutableArray class]];
  return desktop::make<platform::Object, ArrayBody>(desktop::Elements(std::move(elements)),
                                                    ArrayBody::Mutable(isMutable));
}

platform::Object dictionaryHandle(NSDictionary* dictionary) {
  using desktop::DictionaryBody;
  plist::Dictionary contents;
  for (NSString* key in dictionary) {
    contents.set([key UTF8String], desktop::unbox(handle([dictionary objectForKey:key])));
  }
  const bool isMutable = [dictionary isKindOfClass:[NSMutableDictionary class]];
  return desktop::make<platform::Object, DictionaryBody>(
      desktop::PropertyListFile{desktop::Entries(std::move(contents))},
      DictionaryBody::Mutable(isMutable));
}

NSString* text(std::string_view utf8) {
  return [[[NSString alloc] initWithBytes:utf8.data()
                                   length:utf8.size()
                                 encoding:NSUTF8StringEncoding] autorelease];
}

id scalarObject(const plist::Value& value) {
  if (const auto string = value.string()) return text(*string);
  if (const auto truth = value.boolean()) return [NSNumber numberWithBool:*truth];
  if (const auto integer = value.integer()) return [NSNumber numberWithLongLong:*integer];
  if (const auto large = value.unsignedInteger())
    return [NSNumber numberWithUnsignedLongLong:*large];
  if (const auto single = value.singleReal()) return [NSNumber numberWithFloat:*single];
  if (const auto real = value.real()) return [NSNumber numberWithDouble:*real];
  if (const auto date = value.date()) return [NSDate dateWithTimeIntervalSinceReferenceDate:*date];
  if (const auto data = value.data())
    return [NSData dataWithBytes:data->data() length:data->size()];
  return nil;
}

id arrayObject(const desktop::ArrayBody& body) {
  NSMutableArray* elements = [NSMutableArray array];
  for (const platform::Object& element : body.elements.objects())
    [elements addObject:object(element)];
  return body.className() == "NSMutableArray" ? elements : [NSArray arrayWithArray:elements];
}

id dictionaryObject(const desktop::DictionaryBody& body) {
  NSMutableDictionary* entries = [NSMutableDictionary dictionary];
  for (const auto& entry : body.file.entries.all()) {
    [entries setObject:object(desktop::box(entry.value())) forKey:text(entry.key())];
  }
  return body.className() == "NSMutableDictionary"
             ? entries
             : [NSDictionary dictionaryWithDictionary:entries];
}

}  // namespace

platform::Object valueHandle(id object) {
  using desktop::make;
  using platform::Object;
  if (object_getClass(object) && class_isMetaClass(object_getClass(object))) {
    return make<Object, desktop::ClassBody>(class_getName((Class)object));
  }
  if ([object isKindOfClass:[NSString class]])
    return value(plist::Value::string([object UTF8String]));
  if ([object isKindOfClass:[NSNumber class]]) return value(numberValue(object));
  if ([object isKindOfClass:[NSData class]]) return value(plist::Value::data(bytesOf(object)));
  if ([object isKindOfClass:[NSDate class]])
    return value(plist::Value::date([object timeIntervalSinceReferenceDate]));
  if ([object isKindOfClass:[NSArray class]]) return arrayHandle(object);
  if ([object isKindOfClass:[NSDictionary class]]) return dictionaryHandle(object);
  if ([object isKindOfClass:[NSURL class]])
    return make<Object, desktop::URLBody>([[object absoluteString] UTF8String]);
  if ([object isKindOfClass:[NSPredicate class]])
    return make<Object, ForeignBody>(object, shown(object));
  return make<Object, ForeignBody>(object, std::string("<") + object_getClassName(object) + '>');
}

id valueObject(const platform::Object& handle) {
  if (auto* value = desktop::bodyAs<desktop::ValueBody>(handle)) return scalarObject(value->value);
  if (auto* array = desktop::bodyAs<desktop::ArrayBody>(handle)) return arrayObject(*array);
  if (auto* dictionary = desktop::bodyAs<desktop::DictionaryBody>(handle))
    return dictionaryObject(*dictionary);
  if (auto* known = desktop::bodyAs<desktop::ClassBody>(handle))
    return (id)objc_lookUpClass(known->name.c_str());
  return nil;
}

}  // namespace doubles
