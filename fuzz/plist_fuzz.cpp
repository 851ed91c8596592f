#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include "plist/Document.h"
#include "tests/plist/Describe.h"

namespace {

// Small bounds, so that the fuzzer finds inputs at them.
constexpr plist::Limits kLimits = {.depth = 64, .nodes = 5000};

// What a file may grow to by being written: the least a reader takes for a value is a reference of
// one byte to a number that others refer to as well, the most a writer makes of it 17 bytes with
// an offset and a reference of 4 each.
constexpr std::size_t kGrowth = 32;
constexpr std::size_t kFixed = 256;  // what is around any value

void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

std::optional<plist::Document> readInput(const std::string& file) {
  try {
    return plist::read(file, kLimits);
  } catch (const plist::Unreadable&) {
    return {};
  }
}

}  // namespace

/// Whatever is read survives both forms exactly, and nothing else than a refusal may happen: an
/// exception from reading what was written here ends the run.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const auto document = readInput(std::string(reinterpret_cast<const char*>(bytes), size));
  if (!document) return 0;
  const plist::Value& root = document->root;

  const std::string binary = plist::writeBinary(root);
  require(plist::read(binary, kLimits).root == root, "binary gives back something else");
  require(plist::writeBinary(root) == binary, "binary is not the same twice");

  const auto xml = plist::writeXml(root);
  if (xml) {
    require(plist::read(*xml, kLimits).root == samples::widened(root),
            "XML gives back something else");
  } else {
    require(document->form == plist::Form::Binary, "what was XML has no form in XML");
  }

  const auto written = plist::write(root, document->form, kLimits);
  require(written.has_value(), "what was read is not written");
  require(written->size() <= kGrowth * size + kFixed, "written, it is far larger");
  return 0;
}
