#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "plist/Document.h"
#include "plist/Nodes.h"
#include "plist/XmlElements.h"

namespace plist::xml {

/// Builds a property list from its elements as they begin and end. Each function throws
/// Unreadable, without a place, for what has no business where it comes.
class Tree {
 public:
  Tree(std::size_t textBytes, const Limits& limits);

  void begin(Element element);
  void text(std::string_view text);
  void end();

  /// Whether an element is open in which no other markup may stand.
  [[nodiscard]] bool isInValue() const noexcept { return leaf_.has_value(); }

  /// The innermost container that is open; none when only the root element is.
  [[nodiscard]] std::optional<Element> innermost() const noexcept;

  /// The whole property list, after its last element has ended.
  Value take() { return std::move(*root_); }

 private:
  struct Open {
    Value container;
    std::optional<Value> key = {};  // the key that waits for its value
  };

  void count();
  void beginContainer(Element element);
  void expectPlace(Element element) const;
  Value leafValue();
  Value slice(Internals::Kind kind);
  void place(Value value);

  const Limits& limits_;
  BufferLoan text_;  // of all strings and data, one after another
  std::size_t leafStart_ = 0;
  std::optional<Element> leaf_;  // the element of text, or true or false, that is open
  std::vector<Open> open_;
  std::optional<Value> root_;
  bool inPlist_ = false;
  std::uint32_t nodes_ = 0;
};

}  // namespace plist::xml
