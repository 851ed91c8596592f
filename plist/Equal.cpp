#include <algorithm>
#include <utility>
#include <vector>

#include "plist/Nodes.h"
#include "plist/Value.h"

namespace plist {
namespace {

// The pairs still to compare stand in a list, not on the stack, so depth costs no stack.
using Pairs = std::vector<std::pair<const Value*, const Value*>>;

bool equalHere(const Value& left, const Value& right, Pairs& pairs);

/// Compares what needs no list, which is most of what stands in one.
bool equalOrAdded(const Value& left, const Value& right, Pairs& pairs) {
  if (Internals::kind(left) < Internals::Kind::Array) return equalHere(left, right, pairs);
  pairs.emplace_back(&left, &right);
  return true;
}

bool addPairs(const Array& left, const Array& right, Pairs& pairs) {
  return std::equal(
      left.begin(), left.end(), right.begin(), right.end(),
      [&](const Value& one, const Value& other) { return equalOrAdded(one, other, pairs); });
}

bool addPairs(const Dictionary& left, const Dictionary& right, Pairs& pairs) {
  if (left.size() != right.size()) return false;
  for (const Dictionary::Entry& entry : left) {
    const Value* const other = right.find(entry.key());
    if (other == nullptr || !equalOrAdded(entry.value(), *other, pairs)) return false;
  }
  return true;
}

bool equalHere(const Value& left, const Value& right, Pairs& pairs) {
  using Kind = Internals::Kind;
  const Kind kind = Internals::kind(left);
  if (kind != Internals::kind(right)) return false;
  if (kind < Kind::String) return Internals::bits(left) == Internals::bits(right);
  if (kind < Kind::Array) return Internals::slice(left) == Internals::slice(right);
  if (Internals::node(left) == Internals::node(right)) return true;
  return kind == Kind::Array ? addPairs(*left.array(), *right.array(), pairs)
                             : addPairs(*left.dictionary(), *right.dictionary(), pairs);
}

}  // namespace

bool operator==(const Value& left, const Value& right) {
  Pairs pairs = {{&left, &right}};
  while (!pairs.empty()) {
    const auto [one, other] = pairs.back();
    pairs.pop_back();
    if (!equalHere(*one, *other, pairs)) return false;
  }
  return true;
}

bool operator==(const Array& left, const Array& right) { return Value(left) == Value(right); }

bool operator==(const Dictionary& left, const Dictionary& right) {
  return Value(left) == Value(right);
}

}  // namespace plist
