#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "plist/Document.h"
#include "plist/Scalars.h"
#include "plist/Text.h"
#include "plist/XmlElements.h"

namespace plist {
namespace {

constexpr std::string_view kFoot = "</plist>\n";

// As the platform lays data out: 76 columns, a tab counting 8, and never more than 8 tabs. No other
// line has more either, so that a deep value does not take the square of its depth.
constexpr std::size_t kDataColumns = 76;
constexpr std::size_t kMostTabs = 8;

/// A container of which the elements from `next` on are still to be written.
struct Open {
  const Array* array;
  const Dictionary* dictionary;
  std::size_t next = 0;

  [[nodiscard]] std::size_t size() const { return array ? array->size() : dictionary->size(); }
  [[nodiscard]] std::string_view name() const { return array ? "array" : "dict"; }
};

/// Writes one value after another and remembers whether XML could carry them all.
class XmlWriter {
 public:
  XmlWriter(std::string& out, std::size_t most) : out_(out), most_(most) {}

  bool write(const Value& root) {
    out_ += xml::kHead;
    begin(root);
    while (isGood() && !open_.empty()) step();
    out_ += kFoot;
    return isGood();
  }

 private:
  [[nodiscard]] bool isGood() const { return exact_ && out_.size() <= most_; }
  [[nodiscard]] std::size_t tabs() const { return std::min(open_.size(), kMostTabs); }
  void indent() { out_.append(tabs(), '\t'); }

  void tag(std::string_view before, std::string_view name, std::string_view after) {
    out_ += before;
    out_ += name;
    out_ += after;
  }

  void step();
  void begin(const Value& value);
  void beginContainer(Open container);
  void writeText(std::string_view name, std::string_view text);
  void writeData(std::string_view bytes);

  template <typename Append>
  void writeScalar(std::string_view name, Append&& append) {
    tag("<", name, ">");
    append(out_);
    tag("</", name, ">\n");
  }

  std::string& out_;
  const std::size_t most_;
  std::vector<Open> open_;
  bool exact_ = true;
};

void XmlWriter::step() {
  Open& top = open_.back();
  if (top.next == top.size()) {
    const std::string_view name = top.name();
    open_.pop_back();
    indent();
    tag("</", name, ">\n");
    return;
  }
  const std::size_t at = top.next++;
  if (top.array != nullptr) {
    begin((*top.array)[at]);
    return;
  }
  const Dictionary::Entry& entry = top.dictionary->begin()[at];
  indent();
  writeText("key", entry.key());
  begin(entry.value());
}

void XmlWriter::begin(const Value& value) {
  indent();
  switch (value.type()) {
    case Type::Boolean:
      out_ += *value.boolean() ? "<true/>\n" : "<false/>\n";
      break;
    case Type::Integer:
      writeScalar("integer", [&](std::string& out) { appendInteger(value, out); });
      break;
    case Type::Real:
      writeScalar("real", [&](std::string& out) { exact_ &= appendReal(value, out); });
      break;
    case Type::Date:
      writeScalar("date", [&](std::string& out) { exact_ &= appendDate(*value.date(), out); });
      break;
    case Type::Uid:
      // A dictionary of its number, as the platform has it, would read back as that dictionary.
      exact_ = false;
      break;
    case Type::String:
      writeText("string", *value.string());
      break;
    case Type::Data:
      writeData(*value.data());
      break;
    case Type::Array:
      beginContainer({value.array(), nullptr});
      break;
    case Type::Dictionary:
      beginContainer({nullptr, value.dictionary()});
      break;
  }
}

void XmlWriter::beginContainer(Open container) {
  const bool isEmpty = container.size() == 0;
  tag("<", container.name(), isEmpty ? "/>\n" : ">\n");
  if (!isEmpty) open_.push_back(container);
}

void XmlWriter::writeText(std::string_view name, std::string_view text) {
  exact_ &= fitsXml(text);
  tag("<", name, ">");
  while (isGood()) {  // Marks take five times as much as in memory.
    // A carriage return as it is would become a line feed in the hands of an XML parser.
    const std::size_t plain = std::min(text.find_first_of("<>&\r"), text.size());
    out_ += text.substr(0, plain);
    if (plain == text.size()) break;
    switch (text[plain]) {
      case '<':
        out_ += "&lt;";
        break;
      case '>':
        out_ += "&gt;";
        break;
      case '&':
        out_ += "&amp;";
        break;
      default:
        out_ += "&#13;";
    }
    text.remove_prefix(plain + 1);
  }
  tag("</", name, ">\n");
}

void XmlWriter::writeData(std::string_view bytes) {
  out_ += "<data>\n";
  appendBase64(bytes, tabs(), kDataColumns - 8 * tabs(), out_);
  indent();
  out_ += "</data>\n";
}

}  // namespace

std::optional<std::string> writeXml(const Value& value, std::size_t most) {
  std::string out;
  if (!XmlWriter(out, most).write(value)) return {};
  return out;
}

}  // namespace plist
