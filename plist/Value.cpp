#include "plist/Value.h"

#include <array>
#include <stdexcept>

#include "plist/Nodes.h"
#include "plist/Text.h"

namespace plist {

Value::Value(Array array) noexcept : Value(Kind::Array) {
  new (&payload_.array) Array(std::move(array));
}

Value::Value(Dictionary dictionary) noexcept : Value(Kind::Dictionary) {
  new (&payload_.dictionary) Dictionary(std::move(dictionary));
}

Value::Value(const Value& other) noexcept : offset_(other.offset_), tag_(other.tag_) {
  switch (kind()) {
    case Kind::Array:
      new (&payload_.array) Array(other.payload_.array);
      break;
    case Kind::Dictionary:
      new (&payload_.dictionary) Dictionary(other.payload_.dictionary);
      break;
    case Kind::String:
    case Kind::Data:
      payload_.buffer = other.payload_.buffer;
      payload_.buffer->retain();
      break;
    default:
      payload_.bits = other.payload_.bits;
  }
}

void Value::release() noexcept {
  if (kind() < Kind::Array) {
    payload_.buffer->release();
  } else if (Node* const node = Internals::node(*this)) {
    node->release();
  }
}

Value Value::owning(Kind kind, std::string bytes) {
  if (bytes.size() > kMaxSize) throw std::length_error("property list: 256 MiB in one value");
  const auto size = static_cast<std::uint32_t>(bytes.size());
  return Internals::slice(kind, new Buffer(std::move(bytes)), 0, size);
}

Value Value::string(std::string_view text) {
  if (!isText(text)) throw std::invalid_argument("property list: a string that is not text");
  return owning(Kind::String, std::string(text));
}

Value Value::data(std::string_view bytes) { return owning(Kind::Data, std::string(bytes)); }

Type Value::type() const noexcept {
  static constexpr std::array kTypes = {Type::Boolean, Type::Integer, Type::Integer,   Type::Real,
                                        Type::Real,    Type::Date,    Type::Uid,       Type::String,
                                        Type::Data,    Type::Array,   Type::Dictionary};
  return kTypes[static_cast<std::size_t>(kind())];
}

std::optional<bool> Value::boolean() const noexcept {
  if (kind() != Kind::Boolean) return {};
  return payload_.bits != 0;
}

std::optional<std::int64_t> Value::integer() const noexcept {
  if (kind() != Kind::Integer) return {};
  return static_cast<std::int64_t>(payload_.bits);
}

std::optional<std::uint64_t> Value::unsignedInteger() const noexcept {
  if (kind() != Kind::Large && integer().value_or(-1) < 0) return {};
  return payload_.bits;
}

std::optional<double> Value::real() const noexcept {
  if (kind() == Kind::Double) return std::bit_cast<double>(payload_.bits);
  return singleReal();
}

std::optional<float> Value::singleReal() const noexcept {
  if (kind() != Kind::Single) return {};
  return std::bit_cast<float>(static_cast<std::uint32_t>(payload_.bits));
}

std::optional<std::string_view> Value::string() const noexcept {
  if (kind() != Kind::String) return {};
  return Internals::slice(*this);
}

std::optional<std::string_view> Value::data() const noexcept {
  if (kind() != Kind::Data) return {};
  return Internals::slice(*this);
}

std::optional<double> Value::date() const noexcept {
  if (kind() != Kind::Date) return {};
  return std::bit_cast<double>(payload_.bits);
}

std::optional<std::uint32_t> Value::uid() const noexcept {
  if (kind() != Kind::Uid) return {};
  return static_cast<std::uint32_t>(payload_.bits);
}

}  // namespace plist
