#include "desktop/CoreGraphics/Png.h"

#include <cstdint>
#include <cstring>
#include <new>

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

/// Asked before anything is decoded: a small file may announce, and unpack to, any size.
bool isBearable(std::string_view bytes) {
  constexpr std::size_t widthPlace = opening.size();
  constexpr std::size_t heightPlace = widthPlace + sizeof(std::uint32_t);
  if (!bytes.starts_with(opening) || bytes.size() < heightPlace + sizeof(std::uint32_t)) {
    return false;
  }
  const double width = numberAt(bytes, widthPlace);
  const double height = numberAt(bytes, heightPlace);
  return width * height <= maximumPixels;
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

Surface readPng(std::string_view bytes) {
  if (!isBearable(bytes)) return nullptr;
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
