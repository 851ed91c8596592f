#include "plist/Value.h"

#include <array>
#include <cstring>
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

// What a representation holds is plain bits and one counted pointer: copying them and counting
// once more is a copy, copying them and forgetting the source is a move.
Value::Value(const Value& other) noexcept {
  std::memcpy(static_cast<void*>(this), &other, sizeof(Value));
  if (!shares()) return;
  if (kind() < Kind::Array) {
    payload_.buffer->retain();
  } else if (Node* const node = Internals::node(*this)) {
    node->retain();
  }
}

Value::Value(Value&& other) noexcept {
  std::memcpy(static_cast<void*>(this), &other, sizeof(Value));
  other.tag_ = 0;
  other.payload_.bits = 0;
}

Value& Value::operator=(const Value& other) noexcept { return *this = Value(other); }

Value& Value::operator=(Value&& other) noexcept {
  const Value old(std::move(*this));  // goes last: `other` may live inside it
  return *new (this) Value(std::move(other));
}

Value::~Value() {
  if (!shares()) return;
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

std::string_view Value::slice() const noexcept {
  return {payload_.buffer->bytes.data() + offset_, tag_ & kMaxSize};
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
  return slice();
}

std::optional<std::string_view> Value::data() const noexcept {
  if (kind() != Kind::Data) return {};
  return slice();
}

std::optional<double> Value::date() const noexcept {
  if (kind() != Kind::Date) return {};
  return std::bit_cast<double>(payload_.bits);
}

std::optional<std::uint32_t> Value::uid() const noexcept {
  if (kind() != Kind::Uid) return {};
  return static_cast<std::uint32_t>(payload_.bits);
}

const Array* Value::array() const noexcept {
  return kind() == Kind::Array ? &payload_.array : nullptr;
}
Array* Value::array() noexcept { return kind() == Kind::Array ? &payload_.array : nullptr; }

const Dictionary* Value::dictionary() const noexcept {
  return kind() == Kind::Dictionary ? &payload_.dictionary : nullptr;
}
Dictionary* Value::dictionary() noexcept {
  return kind() == Kind::Dictionary ? &payload_.dictionary : nullptr;
}

}  // namespace plist
