#include "platform/Foundation/NSURL.h"

#include <algorithm>
#include <string_view>

#include "desktop/Foundation/URLBody.h"
#include "desktop/Message.h"

namespace platform {

namespace {

// The character classes of RFC 3986, appendix A.
constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view digits = "0123456789";
constexpr std::string_view hexDigits = "0123456789abcdefABCDEF";
constexpr std::string_view schemeMarks = "+-.";
constexpr std::string_view marks = "-._~!$&'()*+,;=:@/?#%";
constexpr std::string_view brackets = "[]";

bool holds(std::string_view letterClass, char letter) {
  return letterClass.find(letter) != std::string_view::npos;
}

bool isAlphanumeric(char letter) { return holds(letters, letter) || holds(digits, letter); }

/// Each "%" begins the number of one byte.
bool percentsAreEncodings(std::string_view text) {
  for (auto at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1)) {
    const std::string_view number = text.substr(at + 1, 2);
    if (number.size() < 2 || !holds(hexDigits, number[0]) || !holds(hexDigits, number[1])) {
      return false;
    }
  }
  return true;
}

bool isScheme(std::string_view text) {
  return !text.empty() && holds(letters, text[0]) && std::ranges::all_of(text, [](char letter) {
    return isAlphanumeric(letter) || holds(schemeMarks, letter);
  });
}

/// Takes what stands before the first of `ends` off the front.
std::string_view takeUntil(std::string_view& text, std::string_view ends) {
  const std::string_view part = text.substr(0, text.find_first_of(ends));
  text.remove_prefix(part.size());
  return part;
}

/// Takes a scheme and an authority, where there are any; whether what stands there may.
bool takeSchemeAndAuthority(std::string_view& text) {
  // A colon in the first segment of a path that begins with no slash ends a scheme.
  const std::string_view first = text.substr(0, text.find_first_of("/?#"));
  if (const std::size_t colon = first.find(':'); colon != std::string_view::npos) {
    if (!isScheme(first.substr(0, colon))) return false;
    text.remove_prefix(colon + 1);
  }
  if (!text.starts_with("//")) return true;
  text.remove_prefix(2);
  return std::ranges::all_of(takeUntil(text, "/?#"), [](char letter) {
    return isAlphanumeric(letter) || holds(marks, letter) || holds(brackets, letter);
  });
}

bool isAddress(std::string_view text) {
  if (text.empty() || !percentsAreEncodings(text) || !takeSchemeAndAuthority(text)) return false;
  return std::ranges::count(text, '#') <= 1 && std::ranges::all_of(text, [](char letter) {
           return isAlphanumeric(letter) || holds(marks, letter);
         });
}

}  // namespace

NSURL NSURL::URLWithString(const NSString& text) {
  return desktop::sendClass("NSURL", "URLWithString:", {text}, [&] {
    const std::string address = text.UTF8String();
    return isAddress(address) ? desktop::make<NSURL, desktop::URLBody>(address) : NSURL();
  });
}

}  // namespace platform
