#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "plist/Document.h"

namespace {

using plist::Array;
using plist::Dictionary;
using plist::Value;

void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

/// What XML gives back: reals of single width in double width.
Value widened(const Value& value) {
  if (value.singleReal()) return Value::real(*value.real());
  if (const Array* const array = value.array()) {
    Array wide;
    for (const Value& item : *array) wide.append(widened(item));
    return Value(wide);
  }
  if (const Dictionary* const dictionary = value.dictionary()) {
    Dictionary wide;
    for (const Dictionary::Entry& entry : *dictionary)
      wide.set(entry.key(), widened(entry.value()));
    return Value(wide);
  }
  return value;
}

}  // namespace

/// Whatever is read survives both forms exactly, and nothing else than a refusal may happen.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string file(reinterpret_cast<const char*>(bytes), size);
  // Small bounds, so that the fuzzer finds inputs at them.
  const plist::Limits limits = {.depth = 64, .nodes = 5000};
  try {
    const plist::Document document = plist::read(file, limits);
    const std::string binary = plist::writeBinary(document.root);
    require(plist::read(binary, limits).root == document.root, "binary gives back something else");
    require(plist::writeBinary(document.root) == binary, "binary is not the same twice");
    if (const auto xml = plist::writeXml(document.root)) {
      require(plist::read(*xml, limits).root == widened(document.root),
              "XML gives back something else");
    } else {
      require(document.form == plist::Form::Binary, "what was XML has no form in XML");
    }
  } catch (const plist::Unreadable&) {
  }
  return 0;
}
