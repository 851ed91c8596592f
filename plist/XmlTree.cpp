#include "plist/XmlTree.h"

#include <string>
#include <utility>

#include "plist/Scalars.h"

namespace plist::xml {
namespace {

using Kind = Internals::Kind;

Value orRefuse(std::optional<Value> value, const char* reason) {
  if (!value) throw Unreadable(reason);
  return *std::move(value);
}

std::string reserved(std::size_t bytes) {
  std::string text;
  text.reserve(bytes);
  return text;
}

}  // namespace

Tree::Tree(std::size_t textBytes, const Limits& limits)
    : limits_(limits), text_(reserved(textBytes)) {}

void Tree::count() {
  if (nodes_ == limits_.nodes) throw Unreadable("too many values");
  ++nodes_;
}

std::optional<Element> Tree::innermost() const noexcept {
  if (open_.empty()) return {};
  return open_.back().container.array() ? Element::Array : Element::Dictionary;
}

void Tree::begin(Element element) {
  if (leaf_) throw Unreadable("element inside a value");
  if (!inPlist_ || element == Element::Plist) {
    if (inPlist_ || element != Element::Plist) throw Unreadable("plist is not the root alone");
    inPlist_ = true;
    return;
  }
  expectPlace(element);
  count();
  if (element == Element::Array || element == Element::Dictionary) {
    beginContainer(element);
  } else {
    leaf_ = element;
    leafStart_ = text_.bytes().size();
  }
}

void Tree::expectPlace(Element element) const {
  if (open_.empty() && root_) throw Unreadable("more than one value");
  const bool wantsKey =
      !open_.empty() && open_.back().container.dictionary() != nullptr && !open_.back().key;
  if (wantsKey && element != Element::Key) throw Unreadable("value without a key");
  if (!wantsKey && element == Element::Key) throw Unreadable("key out of place");
}

void Tree::beginContainer(Element element) {
  if (open_.size() >= limits_.depth) throw Unreadable("nested too deeply");
  open_.push_back({element == Element::Array ? Value(Array()) : Value(Dictionary())});
}

void Tree::text(std::string_view text) {
  if (leaf_ && hasText(*leaf_)) {
    text_.bytes().append(text);
  } else if (leaf_ || text.find_first_not_of(" \t\r\n") != std::string_view::npos) {
    throw Unreadable("text outside a value");
  }
}

void Tree::end() {
  if (leaf_) {
    Value value = leafValue();
    const bool isKey = *leaf_ == Element::Key;
    leaf_.reset();
    if (isKey) {
      open_.back().key = std::move(value);
    } else {
      place(std::move(value));
    }
  } else if (!open_.empty()) {
    if (open_.back().key) throw Unreadable("key without a value");
    Value value = std::move(open_.back().container);
    open_.pop_back();
    place(std::move(value));
  } else if (!root_) {
    throw Unreadable("no value");
  }
}

Value Tree::slice(Kind kind) {
  const std::size_t size = text_.bytes().size() - leafStart_;
  if (text_.bytes().size() > limits_.text) throw Unreadable("too much text");
  if (size > Internals::kMaxSize) throw Unreadable("value too long");
  return Internals::slice(kind, text_.take(), static_cast<std::uint32_t>(leafStart_),
                          static_cast<std::uint32_t>(size));
}

Value Tree::leafValue() {
  std::string& all = text_.bytes();
  const auto parse = [&](auto parser, const char* reason) {
    Value value = orRefuse(parser(std::string_view(all).substr(leafStart_)), reason);
    all.resize(leafStart_);
    return value;
  };
  switch (*leaf_) {
    case Element::Integer:
      return parse(parseInteger, "bad integer");
    case Element::Real:
      return parse(parseReal, "bad real");
    case Element::Date:
      return parse(parseDate, "bad date");
    case Element::Data:
      if (!decodeBase64(all, leafStart_)) throw Unreadable("bad data");
      return slice(Kind::Data);
    case Element::True:
    case Element::False:
      return Value(*leaf_ == Element::True);
    default:
      return slice(Kind::String);
  }
}

void Tree::place(Value value) {
  if (open_.empty()) {
    root_ = std::move(value);
    return;
  }
  Open& parent = open_.back();
  if (Array* const array = parent.container.array()) {
    array->append(std::move(value));
    return;
  }
  // The last of two values of one key stays, in the place of the first.
  DictionaryNode& node = Internals::own(*parent.container.dictionary());
  if (Value* const before = node.add(*std::move(parent.key), std::move(value))) {
    *before = std::move(value);  // NOLINT(bugprone-use-after-move): then nothing was taken
  }
  parent.key.reset();
}

}  // namespace plist::xml
