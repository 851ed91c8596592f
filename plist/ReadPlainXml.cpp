#include "plist/ReadPlainXml.h"

#include <array>

#include "plist/Text.h"
#include "plist/XmlTree.h"

namespace plist {
namespace {

using xml::Element;

/// What may stand in text as it is. Of ">" only "]]>" may not, which is rare enough.
constexpr auto kPlain = [] {
  std::array<bool, 256> plain{};
  for (std::size_t letter = ' '; letter <= '~'; ++letter) plain[letter] = true;
  plain['\t'] = plain['\n'] = true;
  plain['<'] = plain['>'] = plain['&'] = false;
  for (std::size_t byte = 0x80; byte < plain.size(); ++byte) plain[byte] = true;
  return plain;
}();

/// Each step answers whether the document is plain up to there.
class PlainXmlReader {
 public:
  PlainXmlReader(std::string_view bytes, const Limits& limits)
      : rest_(bytes), tree_(bytes.size(), limits) {}

  bool read() {
    if (!skip(xml::kHead)) return false;
    tree_.begin(Element::Plist);
    do {
      skipSpace();
      if (!skip("<") || !(skip("/") ? readEnd() : readElement())) return false;
    } while (!ended_);
    skipSpace();
    return rest_.empty();
  }

  Value take() { return tree_.take(); }

 private:
  bool skip(std::string_view expected) {
    if (!rest_.starts_with(expected)) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }

  void skipSpace() {
    std::size_t at = 0;
    while (at < rest_.size() && (rest_[at] == '\n' || rest_[at] == '\t' || rest_[at] == ' ')) ++at;
    rest_.remove_prefix(at);
  }

  bool readElement();
  bool readText(std::string_view name);
  bool readEnd();

  std::string_view rest_;
  xml::Tree tree_;
  bool ended_ = false;
};

/// The rest of "<name>", "<name/>" or, where text belongs, "<name>text</name>".
bool PlainXmlReader::readElement() {
  std::size_t length = 0;
  while (length < rest_.size() && rest_[length] != '/' && rest_[length] != '>') ++length;
  const std::string_view name = rest_.substr(0, length);
  const std::optional<Element> element = xml::elementNamed(name);
  if (!element) return false;
  rest_.remove_prefix(length);
  const bool isEmpty = skip("/");
  if (!skip(">")) return false;
  tree_.begin(*element);
  if (isEmpty) {
    tree_.end();
    return true;
  }
  return !tree_.isInValue() || readText(name);
}

bool PlainXmlReader::readText(std::string_view name) {
  std::size_t length = 0;
  while (length < rest_.size() && kPlain[static_cast<unsigned char>(rest_[length])]) ++length;
  const std::string_view text = rest_.substr(0, length);
  if (!isAscii(text) && (!isText(text) || !fitsXml(text))) return false;
  if (length > 0) tree_.text(text);
  rest_.remove_prefix(length);
  if (!skip("</") || !skip(name) || !skip(">")) return false;
  tree_.end();
  return true;
}

/// The rest of the "</name>" of a container.
bool PlainXmlReader::readEnd() {
  const std::optional<Element> container = tree_.innermost();
  ended_ = !container;
  if (!skip(xml::nameOf(container.value_or(Element::Plist))) || !skip(">")) return false;
  tree_.end();
  return true;
}

}  // namespace

std::optional<Value> readPlainXml(std::string_view bytes, const Limits& limits) {
  try {
    PlainXmlReader reader(bytes, limits);
    if (reader.read()) return reader.take();
  } catch (const Unreadable&) {
  }
  return {};
}

}  // namespace plist
