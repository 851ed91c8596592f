#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace plist::xml {

/// What stands before the value, as the platform writes it.
inline constexpr std::string_view kHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n";

/// The elements of the DTD -//Apple//DTD PLIST 1.0//EN.
enum class Element {
  Plist,
  Array,
  Dictionary,
  Key,
  String,
  Integer,
  Real,
  Date,
  Data,
  True,
  False
};

struct ElementName {
  Element element;
  std::string_view name;
};

inline constexpr std::array<ElementName, 11> kElements = {{
    {Element::Plist, "plist"},
    {Element::Array, "array"},
    {Element::Dictionary, "dict"},
    {Element::Key, "key"},
    {Element::String, "string"},
    {Element::Integer, "integer"},
    {Element::Real, "real"},
    {Element::Date, "date"},
    {Element::Data, "data"},
    {Element::True, "true"},
    {Element::False, "false"},
}};

inline constexpr std::size_t kLongestName = 7;

constexpr std::string_view nameOf(Element element) noexcept {
  return kElements[static_cast<std::size_t>(element)].name;
}

/// A name as a number, by which names are told apart at once; 0 for what is too long for one.
constexpr std::uint64_t packed(std::string_view name) noexcept {
  std::uint64_t number = 0;
  if (name.size() > kLongestName) return number;
  for (const char letter : name) number = number << 8 | static_cast<unsigned char>(letter);
  return number;
}

/// None for the name of no element.
inline std::optional<Element> elementNamed(std::string_view name) noexcept {
  static constexpr auto kPacked = [] {
    std::array<std::uint64_t, kElements.size()> all{};
    for (const ElementName& known : kElements) {
      all[static_cast<std::size_t>(known.element)] = packed(known.name);
    }
    return all;
  }();
  const auto found = std::find(kPacked.begin(), kPacked.end(), packed(name));
  if (found == kPacked.end()) return {};
  return static_cast<Element>(found - kPacked.begin());
}

/// Whether text stands in the element.
constexpr bool hasText(Element element) noexcept {
  return element >= Element::Key && element <= Element::Data;
}

}  // namespace plist::xml
