#pragma once

#include <bit>
#include <concepts>
#include <cstdint>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "plist/Array.h"
#include "plist/Dictionary.h"

namespace plist {

struct Buffer;

/// What a value is. The types are never mixed up: a boolean is not the integer 1.
enum class Type { Boolean, Integer, Real, Date, Uid, String, Data, Array, Dictionary };

/// One value of a property list, of 16 bytes. Copying shares text, data and containers and never
/// fails; a moved-from value is the boolean false. A getter of another type gives none.
class Value {
 public:
  /// Only a bool makes a boolean: a pointer or a number does not compile.
  template <std::same_as<bool> Bool>
  explicit Value(Bool truth) noexcept : Value(Kind::Boolean) {
    payload_.bits = truth;
  }
  explicit Value(Array array) noexcept;
  explicit Value(Dictionary dictionary) noexcept;

  /// Any integer from -2^63 to 2^64 - 1.
  template <std::integral Number>
  requires(!std::same_as<Number, bool>) static Value integer(Number number) noexcept {
    Value value(std::cmp_greater(number, INT64_MAX) ? Kind::Large : Kind::Integer);
    value.payload_.bits = static_cast<std::uint64_t>(number);
    return value;
  }

  /// Keeps the width and every bit: -0.0, the infinities and the payload of a NaN too.
  static Value real(double number) noexcept {
    return Value(Kind::Double, std::bit_cast<std::uint64_t>(number));
  }
  static Value real(float number) noexcept {
    return Value(Kind::Single, std::bit_cast<std::uint32_t>(number));
  }

  /// Text as in plist/Text.h, below 256 MiB. Throws std::invalid_argument if it is not text,
  /// std::length_error if it is longer, std::bad_alloc.
  static Value string(std::string_view text);

  /// Any bytes, below 256 MiB. Throws std::length_error if there are more, std::bad_alloc.
  static Value data(std::string_view bytes);

  /// Seconds since 2001-01-01T00:00:00Z, every bit kept, so fractions and infinities as well.
  static Value date(double seconds) noexcept {
    return Value(Kind::Date, std::bit_cast<std::uint64_t>(seconds));
  }

  /// A reference of a keyed archive. XML has no form of its own for it.
  static Value uid(std::uint32_t number) noexcept { return Value(Kind::Uid, number); }

  Value(const Value& other) noexcept;
  Value(Value&& other) noexcept { take(other); }
  Value& operator=(const Value& other) noexcept { return *this = Value(other); }
  Value& operator=(Value&& other) noexcept {
    Value taken(std::move(other));  // `other` may live inside what goes now, or be this value
    if (shares()) release();
    take(taken);
    return *this;
  }
  ~Value() {
    if (shares()) release();
  }

  [[nodiscard]] Type type() const noexcept;

  [[nodiscard]] std::optional<bool> boolean() const noexcept;
  /// None also above 2^63 - 1.
  [[nodiscard]] std::optional<std::int64_t> integer() const noexcept;
  /// None also below 0.
  [[nodiscard]] std::optional<std::uint64_t> unsignedInteger() const noexcept;
  /// A real of either width; single width widens exactly (a signalling NaN becomes quiet).
  [[nodiscard]] std::optional<double> real() const noexcept;
  /// None also for a real of double width.
  [[nodiscard]] std::optional<float> singleReal() const noexcept;
  /// Valid as long as this value or a copy of it lives unchanged; so is data().
  [[nodiscard]] std::optional<std::string_view> string() const noexcept;
  [[nodiscard]] std::optional<std::string_view> data() const noexcept;
  /// Seconds since 2001-01-01T00:00:00Z.
  [[nodiscard]] std::optional<double> date() const noexcept;
  [[nodiscard]] std::optional<std::uint32_t> uid() const noexcept;
  [[nodiscard]] const Array* array() const noexcept {
    return kind() == Kind::Array ? &payload_.array : nullptr;
  }
  [[nodiscard]] Array* array() noexcept {
    return kind() == Kind::Array ? &payload_.array : nullptr;
  }
  [[nodiscard]] const Dictionary* dictionary() const noexcept {
    return kind() == Kind::Dictionary ? &payload_.dictionary : nullptr;
  }
  [[nodiscard]] Dictionary* dictionary() noexcept {
    return kind() == Kind::Dictionary ? &payload_.dictionary : nullptr;
  }

  /// Exact: the same type, width and bits; arrays in order, dictionaries in any order.
  friend bool operator==(const Value& left, const Value& right);

 private:
  friend struct Internals;

  // An integer above 2^63 - 1 is Large, so that equal numbers always have equal representations.
  enum class Kind : std::uint32_t {
    Boolean,
    Integer,
    Large,
    Single,
    Double,
    Date,
    Uid,
    String,
    Data,
    Array,
    Dictionary
  };
  union Payload {
    Payload() noexcept : bits(0) {}
    ~Payload() {}  // NOLINT(modernize-use-equals-default): that would be deleted
    std::uint64_t bits;
    Buffer* buffer;
    plist::Array array;
    plist::Dictionary dictionary;
  };
  static constexpr std::uint32_t kKindShift = 28;
  static constexpr std::uint32_t kMaxSize = (1U << kKindShift) - 1;

  explicit Value(Kind kind, std::uint64_t bits = 0) noexcept
      : tag_(static_cast<std::uint32_t>(kind) << kKindShift) {
    payload_.bits = bits;
  }
  [[nodiscard]] Kind kind() const noexcept { return Kind{tag_ >> kKindShift}; }
  [[nodiscard]] bool shares() const noexcept { return kind() >= Kind::String; }
  void forget() noexcept {
    payload_.bits = 0;
    tag_ = 0;
  }
  /// Moves `other` into this value, which holds nothing that is shared.
  void take(Value& other) noexcept {
    offset_ = other.offset_;
    tag_ = other.tag_;
    switch (kind()) {
      case Kind::Array:
        new (&payload_.array) Array(std::move(other.payload_.array));
        break;
      case Kind::Dictionary:
        new (&payload_.dictionary) Dictionary(std::move(other.payload_.dictionary));
        break;
      case Kind::String:
      case Kind::Data:
        payload_.buffer = other.payload_.buffer;
        break;
      default:
        payload_.bits = other.payload_.bits;
    }
    other.forget();
  }
  void release() noexcept;
  static Value owning(Kind kind, std::string bytes);

  Payload payload_;           // the bits, or whom the value shares with
  std::uint32_t offset_ = 0;  // of text or data in its buffer
  std::uint32_t tag_ = 0;     // kind, and the length of text or data in bytes
};

/// A key with its value.
class Dictionary::Entry {
 public:
  [[nodiscard]] std::string_view key() const noexcept { return *key_.string(); }
  [[nodiscard]] const Value& value() const noexcept { return value_; }

 private:
  friend struct Internals;
  Entry(Value&& key, Value&& value) noexcept : key_(std::move(key)), value_(std::move(value)) {}

  Value key_;  // always a string
  Value value_;
};

}  // namespace plist
