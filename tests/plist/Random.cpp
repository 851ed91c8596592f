#include "tests/plist/Random.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

#include "plist/Text.h"

namespace samples {
namespace {

using plist::Array;
using plist::Dictionary;
using plist::Value;

constexpr int kDeepest = 4;

class Grower {
 public:
  Grower(std::mt19937_64& random, const Variety& variety) : random_(random), variety_(variety) {}

  Value tree(int depth) {
    Value value = below(2) == 0 ? Value(Array()) : Value(Dictionary());
    for (std::uint64_t left = below(below(4) == 0 ? 40 : 8); left > 0; --left) {
      Value child = depth < kDeepest && below(5) == 0 ? tree(depth + 1) : scalar();
      if (Array* const array = value.array()) {
        array->append(std::move(child));
      } else {
        value.dictionary()->set(key(), std::move(child));
      }
    }
    return value;
  }

 private:
  std::uint64_t below(std::uint64_t bound) { return random_() % bound; }

  Value scalar() {
    switch (below(7)) {
      case 0:
        return Value(below(2) == 0);
      case 1:
        return integer();
      case 2:
        return real();
      case 3:
        return date();
      case 4:
        return Value::data(bytes());
      case 5:
        if (variety_.uids) return Value::uid(static_cast<std::uint32_t>(random_() >> below(32)));
        [[fallthrough]];
      default:
        return Value::string(text());
    }
  }

  Value integer() {
    const std::uint64_t bits = random_() >> below(64);
    if (variety_.largeIntegers && below(4) == 0) return Value::integer(bits);
    return Value::integer(static_cast<std::int64_t>(below(2) == 0 ? bits >> 1 : ~(bits >> 1)));
  }

  Value real() {
    const double number = std::bit_cast<double>(random_());
    if (!variety_.singleReals) {
      return Value::real(std::isfinite(number) && below(2) == 0 ? number : 0.5 + double(below(99)));
    }
    switch (below(6)) {
      case 0:
        return Value::real(std::bit_cast<float>(static_cast<std::uint32_t>(random_())));
      case 1:
        return Value::real(below(2) == 0 ? -0.0 : 0.0);
      case 2:
        return Value::real(below(2) == 0 ? HUGE_VAL : -HUGE_VAL);
      default:
        return Value::real(number);
    }
  }

  Value date() {
    if (variety_.anyDates && below(2) == 0) return Value::date(std::bit_cast<double>(random_()));
    constexpr std::int64_t kFrom1970 = -978'307'200;
    constexpr std::uint64_t kUpTo2037 = 2'114'380'800;
    return Value::date(
        static_cast<double>(kFrom1970 + static_cast<std::int64_t>(below(kUpTo2037))));
  }

  std::string bytes() {
    std::string bytes(below(8) == 0 ? 300 : below(20), '\0');
    for (char& byte : bytes) byte = static_cast<char>(random_());
    return bytes;
  }

  std::string key() {
    std::string key = text();
    if (key.empty() && !variety_.emptyKeys) key = "key";
    return key;
  }

  std::string text() {
    std::string units;
    const std::uint64_t alphabet = below(4);
    for (std::uint64_t left = below(8) == 0 ? 300 : below(24); left > 0; --left) {
      addCharacter(alphabet, units);
    }
    std::string text;
    plist::appendUtf16(units, text);
    return text;
  }

  void addCharacter(std::uint64_t alphabet, std::string& units) {
    const auto add = [&](std::uint64_t unit) {
      units.push_back(static_cast<char>(unit >> 8));
      units.push_back(static_cast<char>(unit & 0xFF));
    };
    if (variety_.anyText && alphabet == 0) return add(below(0x10000));
    if (alphabet == 1 && below(4) == 0) {
      add(0xD83C + below(2));
      return add(0xDC00 + below(0x300));
    }
    if (alphabet == 2 && below(4) == 0) return add(0xA1 + below(0x4FFF));
    add(' ' + below('~' - ' ' + 1));
  }

  std::mt19937_64& random_;
  const Variety& variety_;
};

}  // namespace

Value randomTree(std::mt19937_64& random, const Variety& variety) {
  return Grower(random, variety).tree(0);
}

}  // namespace samples
