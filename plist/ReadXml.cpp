#include "plist/ReadXml.h"

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

#include "plist/Expat.h"
#include "plist/XmlTree.h"

namespace plist {
namespace {

constexpr std::size_t kPiece = std::size_t{64} * 1024;

enum class Encoding { Utf8, Utf16Little, Utf16Big };

struct Mark {
  std::string_view bytes;
  Encoding encoding;
  const char* name;
};

constexpr Mark kMarks[] = {{"\xEF\xBB\xBF", Encoding::Utf8, "UTF-8"},
                           {"\xFF\xFE", Encoding::Utf16Little, "UTF-16"},
                           {"\xFE\xFF", Encoding::Utf16Big, "UTF-16"}};
constexpr Mark kNoMark = {"", Encoding::Utf8, "UTF-8"};

const Mark& markOf(std::string_view bytes) {
  const auto* const found =
      std::find_if(std::begin(kMarks), std::end(kMarks),
                   [&](const Mark& mark) { return bytes.starts_with(mark.bytes); });
  return found == std::end(kMarks) ? kNoMark : *found;
}

class XmlReader {
 public:
  XmlReader(std::string_view bytes, const Limits& limits)
      : bytes_(bytes),
        mark_(markOf(bytes)),
        parser_(mark_.name),
        // No text is longer than the file, but for UTF-16, of which 2 bytes become up to 3.
        tree_(mark_.encoding == Encoding::Utf8 ? bytes.size() : bytes.size() / 2 * 3, limits) {
    XML_Parser parser = parser_.get();
    XML_SetUserData(parser, this);
    XML_SetXmlDeclHandler(parser, &XmlReader::onDeclaration);
    XML_SetStartDoctypeDeclHandler(parser, &XmlReader::onDoctype);
    XML_SetElementHandler(parser, &XmlReader::onBegin, &XmlReader::onEnd);
    XML_SetCharacterDataHandler(parser, &XmlReader::onText);
    XML_SetCommentHandler(parser, &XmlReader::onComment);
    XML_SetProcessingInstructionHandler(parser, &XmlReader::onInstruction);
    XML_SetSkippedEntityHandler(parser, &XmlReader::onEntity);
  }

  Value readTree() {
    // Expat copies what it is given, so it is given little at a time.
    for (std::size_t at = 0; at < bytes_.size() || at == 0; at += kPiece) {
      const std::string_view piece = bytes_.substr(at, kPiece);
      const bool isLast = at + kPiece >= bytes_.size();
      const XML_Status status =
          XML_Parse(parser_.get(), piece.data(), static_cast<int>(piece.size()),
                    isLast ? XML_TRUE : XML_FALSE);
      if (failure_) std::rethrow_exception(failure_);
      if (status != XML_STATUS_OK) refuse();
    }
    return tree_.take();
  }

 private:
  [[noreturn]] void refuse() const {
    const XML_Error error = XML_GetErrorCode(parser_.get());
    if (error == XML_ERROR_NO_MEMORY) {
      if (!ExpatParser::wentBeyondBound()) throw std::bad_alloc();
      throw Unreadable("markup too long", place());
    }
    throw Unreadable(XML_ErrorString(error), place());
  }

  [[nodiscard]] std::size_t place() const {
    return static_cast<std::size_t>(std::max<XML_Index>(0, XML_GetCurrentByteIndex(parser_.get())));
  }

  [[nodiscard]] std::string_view markup() const {
    return bytes_.substr(place(), static_cast<std::size_t>(XML_GetCurrentByteCount(parser_.get())));
  }

  /// No exception may cross Expat: the first is kept and ends the parse.
  template <typename Step>
  static void guard(void* user, Step&& step) noexcept {
    XmlReader& reader = *static_cast<XmlReader*>(user);
    if (reader.failure_) return;  // Expat can call once more after it was stopped
    try {
      step(reader);
    } catch (const Unreadable& unreadable) {
      reader.fail(unreadable);
    } catch (...) {
      reader.failure_ = std::current_exception();
    }
    if (reader.failure_) XML_StopParser(reader.parser_.get(), XML_FALSE);
  }

  void fail(const Unreadable& unreadable) noexcept {
    try {
      throw Unreadable(unreadable.what(), place());
    } catch (...) {
      failure_ = std::current_exception();
    }
  }

  static void XMLCALL onDeclaration(void* user, const XML_Char*, const XML_Char* encoding, int) {
    guard(user, [&](XmlReader& reader) { reader.checkEncoding(encoding); });
  }
  static void XMLCALL onDoctype(void* user, const XML_Char* name, const XML_Char*, const XML_Char*,
                                int hasSubset) {
    guard(user, [&](XmlReader&) {
      if (hasSubset != 0) throw Unreadable("document type with declarations of its own");
      if (std::string_view(name) != "plist") throw Unreadable("another document type");
    });
  }
  static void XMLCALL onBegin(void* user, const XML_Char* name, const XML_Char** attributes) {
    guard(user, [&](XmlReader& reader) {
      reader.checkAttributes(name, attributes);
      const std::optional<xml::Element> element = xml::elementNamed(name);
      if (!element) throw Unreadable("unknown element");
      reader.tree_.begin(*element);
    });
  }
  static void XMLCALL onEnd(void* user, const XML_Char*) {
    guard(user, [&](XmlReader& reader) { reader.tree_.end(); });
  }
  static void XMLCALL onText(void* user, const XML_Char* text, int length) {
    guard(user, [&](XmlReader& reader) {
      reader.addText({text, static_cast<std::size_t>(length)});
    });
  }
  static void XMLCALL onComment(void* user, const XML_Char*) {
    guard(user, [&](XmlReader& reader) { reader.checkBetweenValues(); });
  }
  static void XMLCALL onInstruction(void* user, const XML_Char*, const XML_Char*) {
    guard(user, [&](XmlReader& reader) { reader.checkBetweenValues(); });
  }
  static void XMLCALL onEntity(void* user, const XML_Char*, int) {
    guard(user, [&](XmlReader&) { throw Unreadable("unknown entity"); });
  }

  void checkEncoding(const XML_Char* declared) const;
  void checkAttributes(std::string_view name, const XML_Char** attributes) const;
  void checkBetweenValues() const {
    if (tree_.isInValue()) throw Unreadable("comment or instruction inside a value");
  }
  void addText(std::string_view text);

  std::string_view bytes_;
  const Mark& mark_;
  ExpatParser parser_;
  xml::Tree tree_;
  std::exception_ptr failure_;
};

/// As on the platform, a byte-order mark is believed and the declaration is not.
void XmlReader::checkEncoding(const XML_Char* declared) const {
  constexpr std::string_view kUtf8 = "utf-8";
  if (declared == nullptr || !mark_.bytes.empty()) return;
  const std::string_view name = declared;
  const bool isUtf8 = std::equal(name.begin(), name.end(), kUtf8.begin(), kUtf8.end(),
                                 [](char left, char right) { return (left | 0x20) == right; });
  if (!isUtf8) throw Unreadable("encoding other than UTF-8");
}

void XmlReader::checkAttributes(std::string_view name, const XML_Char** attributes) const {
  if (*attributes == nullptr) return;
  // An unknown entity inside an attribute would be dropped without a word.
  const bool isVersion = name == "plist" && std::string_view(attributes[0]) == "version" &&
                         attributes[2] == nullptr && markup().find('&') == std::string_view::npos;
  if (!isVersion) throw Unreadable("attribute other than the version");
}

void XmlReader::addText(std::string_view text) {
  // Expat makes every end of line a line feed. The platform keeps what stands in the file, so a
  // carriage return that somebody saved has to come through.
  if (text == "\n") {
    const std::string_view raw = markup();
    const std::size_t unit = mark_.encoding == Encoding::Utf8 ? 1 : 2;
    const bool isReturn = raw.substr(0, unit).find('\r') != std::string_view::npos;
    if (isReturn) tree_.text(raw.size() == 2 * unit ? "\r\n" : "\r");
    if (isReturn) return;
  }
  tree_.text(text);
}

}  // namespace

Value readXml(std::string_view bytes, const Limits& limits) {
  // Expat would take a guess.
  if (bytes.substr(0, 2).find('\0') != std::string_view::npos) {
    throw Unreadable("UTF-16 without a byte-order mark", 0);
  }
  return XmlReader(bytes, limits).readTree();
}

}  // namespace plist
