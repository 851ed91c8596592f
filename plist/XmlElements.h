#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace plist::xml {

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

/// None for the name of no element.
inline std::optional<Element> elementNamed(std::string_view name) noexcept {
  for (const ElementName& known : kElements) {
    if (known.name == name) return known.element;
  }
  return {};
}

/// Whether text stands in the element.
constexpr bool hasText(Element element) noexcept {
  return element >= Element::Key && element <= Element::Data;
}

}  // namespace plist::xml
