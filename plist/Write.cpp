#include <algorithm>
#include <utility>
#include <vector>

#include "plist/Document.h"

namespace plist {
namespace {

/// Counts values, text and depth as the readers do, without going on beyond the limits: what is
/// shared counts wherever it shows, so there could be far more than memory holds.
class Measure {
 public:
  explicit Measure(const Limits& limits) : limits_(limits) {}

  bool fits(const Value& root) {
    if (limits_.nodes == 0 || !add(root, 1)) return false;
    while (!open_.empty()) {
      const auto [container, depth] = open_.back();
      open_.pop_back();
      if (depth > limits_.depth || !addElements(*container, depth + 1)) return false;
    }
    return true;
  }

 private:
  bool add(const Value& value, std::uint32_t depth) {
    if (value.type() >= Type::Array) open_.emplace_back(&value, depth);
    if (const auto text = value.string()) return countText(text->size());
    if (const auto data = value.data()) return countText(data->size());
    return true;
  }

  bool countText(std::size_t bytes) {
    text_ += bytes;
    return text_ <= limits_.text;
  }

  bool count(std::size_t nodes) {
    if (nodes > limits_.nodes - nodes_) return false;
    nodes_ += static_cast<std::uint32_t>(nodes);
    return true;
  }

  bool addElements(const Value& container, std::uint32_t depth) {
    if (const Array* const array = container.array()) {
      if (!count(array->size())) return false;
      return std::ranges::all_of(*array, [&](const Value& item) { return add(item, depth); });
    }
    const Dictionary& dictionary = *container.dictionary();
    if (!count(2 * dictionary.size())) return false;
    return std::ranges::all_of(dictionary, [&](const Dictionary::Entry& entry) {
      return countText(entry.key().size()) && add(entry.value(), depth);
    });
  }

  const Limits& limits_;
  std::uint32_t nodes_ = 1;  // the root
  std::uint64_t text_ = 0;
  std::vector<std::pair<const Value*, std::uint32_t>> open_;
};

}  // namespace

std::optional<std::string> write(const Value& value, Form wanted, const Limits& limits) {
  if (!Measure(limits).fits(value)) return {};
  const std::size_t most = std::min(limits.bytes, Limits::kMostBytes);
  if (wanted == Form::Xml) {
    if (std::optional<std::string> xml = writeXml(value, most)) return xml;
  }
  std::string binary = writeBinary(value);
  if (binary.size() > most) return {};
  return binary;
}

}  // namespace plist
