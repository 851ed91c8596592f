#include "fuzz/Survival.h"

#include <optional>

#include "fuzz/Require.h"
#include "plist/Document.h"
#include "plist/PlainBinary.h"
#include "tests/plist/Describe.h"

namespace fuzz {

namespace {

// Small bounds, so that the fuzzer finds inputs at them.
constexpr plist::Limits limits = {.depth = 64, .nodes = 5000};

// What a file may grow to by being written: the least a reader takes for a value is a reference of
// one byte to a number that others refer to as well, the most a writer makes of it 17 bytes with
// an offset and a reference of 4 each.
constexpr std::size_t growth = 32;
constexpr std::size_t fixed = 256;  // what is around any value

std::optional<plist::Document> documentIn(const std::string& file) {
  try {
    return plist::read(file, limits);
  } catch (const plist::Unreadable&) {
    return std::nullopt;
  }
}

/// What is looked into and changed without being read says the same as if it were.
void requireAgreement(std::string file, const std::optional<plist::Document>& document) {
  auto plain = plist::PlainBinary::in(file, limits);
  if (!plain) return;
  const plist::Dictionary* read = document ? document->root.dictionary() : nullptr;
  require(read != nullptr, "taken as a dictionary without being one");
  plist::Dictionary changed = *read;
  for (const auto& entry : *read) {
    require(plain->find(entry.key()) == entry.value(), "another value than is read");
    const auto other = plist::Value::integer(entry.key().size() << 8);
    if (plain->set(entry.key(), other)) changed.set(entry.key(), other);
  }
  const auto after = documentIn(plain->bytes());
  require(after && after->root == plist::Value(changed), "changed into something else");
}

}  // namespace

void requireSurvival(const std::string& file) {
  const auto document = documentIn(file);
  requireAgreement(file, document);
  if (!document) return;
  const plist::Value& root = document->root;

  const std::string binary = plist::writeBinary(root);
  require(plist::read(binary, limits).root == root, "binary gives back something else");
  require(plist::writeBinary(root) == binary, "binary is not the same twice");

  if (const auto xml = plist::writeXml(root)) {
    require(plist::read(*xml, limits).root == samples::widened(root),
            "XML gives back something else");
  } else {
    require(document->form == plist::Form::Binary, "what was XML has no form in XML");
  }

  const auto written = plist::write(root, document->form, limits);
  require(written.has_value(), "what was read is not written");
  require(written->size() <= growth * file.size() + fixed, "written, it is far larger");
}

}  // namespace fuzz
