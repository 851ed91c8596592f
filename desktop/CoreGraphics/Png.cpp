#include "desktop/CoreGraphics/Png.h"

#include <cstdint>
#include <cstring>
#include <new>
#include <zlib.h>

#include "desktop/CoreGraphics/Drawing.h"

namespace desktop {

namespace {

/// What every file begins with: the signature, and the length and name of its first chunk, which
/// holds the width and the height.
constexpr std::string_view opening("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16);

std::uint32_t numberAt(std::string_view bytes, std::size_t place) {
  std::uint32_t number = 0;
  for (const char byte : bytes.substr(place, sizeof number)) {
    number = number << 8 | static_cast<unsigned char>(byte);
  }
  return number;
}

/// The size that the file announces; none when that is unbearable. A small file may announce,
/// and unpack to, any size.
std::optional<PngSize> announcedSize(std::string_view bytes) {
  constexpr std::size_t widthPlace = opening.size();
  constexpr std::size_t heightPlace = widthPlace + sizeof(std::uint32_t);
  if (!bytes.starts_with(opening) || bytes.size() < heightPlace + sizeof(std::uint32_t)) {
    return std::nullopt;
  }
  const double width = numberAt(bytes, widthPlace);
  const double height = numberAt(bytes, heightPlace);
  if (!isBearable(width, height)) return std::nullopt;
  return PngSize{static_cast<int>(width), static_cast<int>(height)};
}

/// Takes a chunk off the front of `rest`: its name and what it holds. None when its check sum is
/// of something else, or it is cut off.
std::optional<std::string_view> takeChunk(std::string_view& rest) {
  constexpr std::size_t field = sizeof(std::uint32_t);
  if (rest.size() < 3 * field || numberAt(rest, 0) > rest.size() - 3 * field) return std::nullopt;
  const std::string_view chunk = rest.substr(field, field + numberAt(rest, 0));
  const std::uint32_t sum = numberAt(rest, field + chunk.size());
  rest.remove_prefix(2 * field + chunk.size());
  if (crc32_z(0, reinterpret_cast<const Bytef*>(chunk.data()), chunk.size()) != sum) {
    return std::nullopt;
  }
  return chunk;
}

/// Whether each chunk up to the last is there, and is what was written.
bool isWhole(std::string_view bytes) {
  constexpr std::size_t signatureSize = 8;
  bytes.remove_prefix(signatureSize);
  while (const auto chunk = takeChunk(bytes)) {
    if (chunk->starts_with("IEND")) return true;
  }
  return false;
}

cairo_status_t take(void* rest, unsigned char* target, unsigned int size) {
  auto& bytes = *static_cast<std::string_view*>(rest);
  if (bytes.size() < size) return CAIRO_STATUS_READ_ERROR;
  std::memcpy(target, bytes.data(), size);
  bytes.remove_prefix(size);
  return CAIRO_STATUS_SUCCESS;
}

cairo_status_t append(void* file, const unsigned char* bytes, unsigned int size) {
  try {
    static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), size);
    return CAIRO_STATUS_SUCCESS;
  } catch (const std::bad_alloc&) {
    return CAIRO_STATUS_NO_MEMORY;  // No exception may pass through Cairo.
  }
}

}  // namespace

std::optional<PngSize> sizeOfPng(std::string_view bytes) {
  const auto size = announcedSize(bytes);
  return size && isWhole(bytes) ? size : std::nullopt;
}

Surface readPng(std::string_view bytes) {
  if (!announcedSize(bytes)) return nullptr;
  Surface decoded(cairo_image_surface_create_from_png_stream(&take, &bytes));
  if (cairo_surface_status(decoded.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
  // Pictures without transparency are decoded without alpha.
  if (cairo_image_surface_get_format(decoded.get()) == CAIRO_FORMAT_ARGB32) return decoded;
  return copyOf(*decoded);
}

std::string writePng(cairo_surface_t& pixels) {
  std::string file;
  const auto status = cairo_surface_write_to_png_stream(&pixels, &append, &file);
  return status == CAIRO_STATUS_SUCCESS ? file : "";
}

}  // namespace desktop
