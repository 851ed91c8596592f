#include "tests/device/macho/Signature.h"

#include <array>
#include <cstdint>
#include <glib.h>
#include <memory>
#include <string>

namespace phone_tests {

namespace {

constexpr std::uint32_t kMagic64 = 0xFEEDFACF;
constexpr std::uint32_t kCodeSignatureCommand = 0x1D;
constexpr std::uint32_t kEmbeddedSignature = 0xFADE0CC0;
constexpr std::uint32_t kCodeDirectory = 0xFADE0C02;
constexpr std::uint32_t kAdHoc = 0x2;
constexpr std::uint32_t kSha256 = 2;
constexpr std::size_t kHashSize = 32;

void require(bool fact, const std::string& flaw) {
  if (!fact) throw NotSigned(flaw);
}

std::string_view slice(std::string_view bytes, std::size_t offset, std::size_t size) {
  require(offset <= bytes.size() && size <= bytes.size() - offset, "the file ends too early");
  return bytes.substr(offset, size);
}

std::uint32_t byteAt(std::string_view bytes, std::size_t offset) {
  return static_cast<unsigned char>(slice(bytes, offset, 1).front());
}

/// As the signature's numbers stand.
std::uint32_t bigEndian(std::string_view bytes, std::size_t offset) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < 4; ++i) number = number << 8 | byteAt(bytes, offset + i);
  return number;
}

/// As the processor's numbers stand, which are the header's.
std::uint32_t littleEndian(std::string_view bytes, std::size_t offset) {
  return __builtin_bswap32(bigEndian(bytes, offset));
}

struct Place {
  std::size_t offset;
  std::size_t size;
};

Place placeOfSignature(std::string_view file) {
  require(littleEndian(file, 0) == kMagic64, "not a thin file of 64 bits");
  std::size_t command = 32;
  for (std::uint32_t left = littleEndian(file, 16); left > 0; --left) {
    if (littleEndian(file, command) == kCodeSignatureCommand) {
      return {littleEndian(file, command + 8), littleEndian(file, command + 12)};
    }
    command += littleEndian(file, command + 4);
  }
  throw NotSigned("there is no signature");
}

std::string sha256(std::string_view bytes) {
  const std::unique_ptr<GChecksum, decltype(&g_checksum_free)> sum(
      g_checksum_new(G_CHECKSUM_SHA256), g_checksum_free);
  g_checksum_update(sum.get(), reinterpret_cast<const guchar*>(bytes.data()),
                    static_cast<gssize>(bytes.size()));
  std::array<guint8, kHashSize> digest;
  gsize size = digest.size();
  g_checksum_get_digest(sum.get(), digest.data(), &size);
  return {digest.begin(), digest.end()};
}

void checkPages(std::string_view code, std::string_view hashes, std::size_t pageSize) {
  require(hashes.size() / kHashSize == (code.size() + pageSize - 1) / pageSize,
          "not every page has a hash");
  for (std::size_t page = 0; page * pageSize < code.size(); ++page) {
    require(sha256(code.substr(page * pageSize, pageSize)) ==
                hashes.substr(page * kHashSize, kHashSize),
            "page " + std::to_string(page) + " is not what was signed");
  }
}

/// `code` is all that stands before the signature.
void checkDirectory(std::string_view directory, std::string_view code) {
  require(bigEndian(directory, 0) == kCodeDirectory, "no code directory");
  require(bigEndian(directory, 12) & kAdHoc, "not signed ad hoc");
  require(byteAt(directory, 36) == kHashSize && byteAt(directory, 37) == kSha256, "not SHA-256");
  require(bigEndian(directory, 32) == code.size(), "not all code is covered");
  const std::size_t pageBits = byteAt(directory, 39);
  require(pageBits < 32, "no size of a page");
  checkPages(code, slice(directory, bigEndian(directory, 16), bigEndian(directory, 28) * kHashSize),
             std::size_t{1} << pageBits);
}

}  // namespace

void checkSignature(std::string_view file) {
  const Place place = placeOfSignature(file);
  require(place.offset + place.size == file.size(), "the signature is not the end of the file");
  const std::string_view signature = slice(file, place.offset, place.size);
  require(bigEndian(signature, 0) == kEmbeddedSignature && bigEndian(signature, 4) <= place.size &&
              bigEndian(signature, 8) >= 1,
          "no signature's header");
  const std::size_t directory = bigEndian(signature, 16);
  require(directory <= signature.size(), "no code directory");
  checkDirectory(signature.substr(directory), file.substr(0, place.offset));
}

}  // namespace phone_tests
