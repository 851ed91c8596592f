#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "plist/Scalars.h"

namespace plist {
namespace {

constexpr std::int64_t kSecondsPerDay = 86'400;
constexpr std::int64_t kDaysPerEra = 146'097;  // the calendar repeats after 400 years
constexpr std::int64_t kYearsPerEra = 400;
constexpr std::int64_t kMaxExact = std::int64_t{1} << 53;  // whole seconds that a double counts
constexpr std::int64_t kMaxYear = kMaxExact / kSecondsPerDay / 365;

std::int64_t floorDivide(std::int64_t number, std::int64_t by) {
  return number / by - (number % by < 0 ? 1 : 0);
}

bool isLeap(std::int64_t year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

std::int64_t daysInMonth(std::int64_t year, std::int64_t month) {
  static constexpr std::array kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return kDays[static_cast<std::size_t>(month - 1)] + (month == 2 && isLeap(year) ? 1 : 0);
}

/// Days from 2001-01-01. The calendar of the library holds only 16 bits of years, so the year is
/// brought into one era and the eras are counted apart.
std::int64_t dayNumber(std::int64_t year, std::int64_t month, std::int64_t day) {
  const std::int64_t era = floorDivide(year, kYearsPerEra);
  const std::chrono::year_month_day inEra{
      std::chrono::year(static_cast<int>(year - era * kYearsPerEra)),
      std::chrono::month(static_cast<unsigned>(month)),
      std::chrono::day(static_cast<unsigned>(day))};
  constexpr std::chrono::sys_days kEpoch =
      std::chrono::year(2001) / std::chrono::January / std::chrono::day(1);
  return era * kDaysPerEra + (std::chrono::sys_days(inEra) - kEpoch).count();
}

/// Takes the text apart from the front; one wrong step and nothing matches any more.
class Scan {
 public:
  explicit Scan(std::string_view text) : rest_(text) {}

  std::int64_t number(std::size_t least, std::size_t most) {
    std::int64_t value = 0;
    const char* const end = rest_.data() + std::min(rest_.size(), most);
    const auto [stop, error] = std::from_chars(rest_.data(), end, value);
    const auto length = static_cast<std::size_t>(stop - rest_.data());
    good_ = good_ && error == std::errc{} && length >= least && rest_[0] != '-';
    rest_.remove_prefix(length);
    return value;
  }
  std::int64_t twoDigits(char before, std::int64_t low, std::int64_t high) {
    take(before);
    const std::int64_t value = number(2, 2);
    good_ = good_ && value >= low && value <= high;
    return value;
  }
  bool take(char expected) {
    const bool there = rest_.starts_with(expected);
    good_ = good_ && there;
    if (there) rest_.remove_prefix(1);
    return there;
  }
  bool takeMinus() { return rest_.starts_with('-') && take('-'); }
  [[nodiscard]] bool isDone() const { return good_ && rest_.empty(); }

 private:
  std::string_view rest_;
  bool good_ = true;
};

}  // namespace

std::optional<Value> parseDate(std::string_view text) {
  Scan scan(text);
  const bool beforeZero = scan.takeMinus();
  const std::int64_t digits = scan.number(1, text.size());
  const std::int64_t year = beforeZero ? -digits : digits;
  const std::int64_t month = scan.twoDigits('-', 1, 12);
  const std::int64_t day = scan.twoDigits('-', 1, 31);
  const std::int64_t hour = scan.twoDigits('T', 0, 23);
  const std::int64_t minute = scan.twoDigits(':', 0, 59);
  const std::int64_t second = scan.twoDigits(':', 0, 59);
  scan.take('Z');
  if (!scan.isDone() || digits > kMaxYear || day > daysInMonth(year, month)) return {};
  const std::int64_t seconds =
      dayNumber(year, month, day) * kSecondsPerDay + hour * 3600 + minute * 60 + second;
  if (seconds < -kMaxExact || seconds > kMaxExact) return {};
  return Value::date(static_cast<double>(seconds));
}

bool appendDate(double seconds, std::string& out) {
  if (!(std::abs(seconds) <= static_cast<double>(kMaxExact)) || seconds != std::trunc(seconds) ||
      (seconds == 0 && std::signbit(seconds))) {
    return false;
  }
  const auto whole = static_cast<std::int64_t>(seconds);
  const std::int64_t days = floorDivide(whole, kSecondsPerDay);
  const std::int64_t inDay = whole - days * kSecondsPerDay;
  // 2001 begins an era with its first year, so eras of days count from there.
  const std::int64_t era = floorDivide(days, kDaysPerEra);
  constexpr std::chrono::sys_days kEpoch =
      std::chrono::year(2001) / std::chrono::January / std::chrono::day(1);
  const std::chrono::year_month_day date{kEpoch + std::chrono::days(days - era * kDaysPerEra)};
  const std::int64_t year = static_cast<int>(date.year()) + era * kYearsPerEra;
  std::array<char, 48> text;
  const int length = std::snprintf(
      text.data(), text.size(), "%s%04lld-%02u-%02uT%02d:%02d:%02dZ", year < 0 ? "-" : "",
      static_cast<long long>(year < 0 ? -year : year), static_cast<unsigned>(date.month()),
      static_cast<unsigned>(date.day()), static_cast<int>(inDay / 3600),
      static_cast<int>(inDay / 60 % 60), static_cast<int>(inDay % 60));
  out.append(text.data(), static_cast<std::size_t>(length));
  return true;
}

}  // namespace plist
