#include <cstdint>
#include <gtest/gtest.h>
#include <zlib.h>

#include "desktop/CoreGraphics/Png.h"
#include "tests/desktop/PhoneTest.h"
#include "tests/desktop/Pixels.h"

namespace desktop_tests {
namespace {

using platform::NSString;
using platform::UIImage;

constexpr Pixel halfGreen = 0x80008000;

/// Four quarters, one of them half transparent.
Pixel quarters(int x, int y) {
  constexpr Pixel colors[] = {red, halfGreen, blue, transparent};
  return colors[(y >= 4 ? 2 : 0) + (x >= 6 ? 1 : 0)];
}

class ImageFilesTest : public PhoneTest {
 protected:
  UIImage load(const std::string& bytes, const std::string& name = "/picture.png") {
    writeBytes(host(name), bytes);
    return UIImage::imageWithContentsOfFile(NSString(name));
  }
  const UIImage picture = makePicture(12, 8, 1, &quarters);
  const std::string png = bodyOf(picture).png();
};

/// A small file of many pixels, a bit each.
std::string manyPixels(int width, int height) {
  const desktop::Surface surface(cairo_image_surface_create(CAIRO_FORMAT_A1, width, height));
  return desktop::writePng(*surface);
}

TEST_F(ImageFilesTest, WhatIsWrittenIsReadAgain) {
  EXPECT_TRUE(png.starts_with("\x89PNG"));
  EXPECT_EQ(pixelsOf(load(png)), pixelsOf(picture));
}

TEST_F(ImageFilesTest, IsEncodedOnce) {
  const desktop::ImageBody& body = bodyOf(picture);
  EXPECT_EQ(body.png().data(), body.png().data());
}

TEST_F(ImageFilesTest, PicturesWithoutTransparencyAreOpaque) {
  const desktop::Surface opaque(cairo_image_surface_create(CAIRO_FORMAT_RGB24, 3, 2));
  const std::string opaquePng = desktop::writePng(*opaque);
  constexpr std::size_t colorType = 25;
  ASSERT_EQ(opaquePng[colorType], 2) << "not a file without alpha";
  EXPECT_EQ(pixelsOf(load(opaquePng)), pixelsOf(makePicture(3, 2, 1, black)));
}

TEST_F(ImageFilesTest, TheNameTellsThePixelsToAPoint) {
  const std::pair<const char*, double> cases[] = {
      {"/a.png", 1},      {"/a@2x.png", 2}, {"/a@3x.png", 3}, {"/a@4x.png", 1},  {"/a@2x.b", 2},
      {"/a@2x.b.png", 1}, {"/a2x.png", 1},  {"/@3x.png", 3},  {"/@2x/a.png", 1}, {"/a@2x", 2},
  };
  std::filesystem::create_directory(host("/@2x"));
  for (const auto& [name, scale] : cases) {
    const UIImage loaded = load(png, name);
    ASSERT_TRUE(loaded) << name;
    EXPECT_EQ(bodyOf(loaded).scale, scale) << name;
    EXPECT_EQ(bodyOf(loaded).size(), platform::CGSizeMake(12 / scale, 8 / scale)) << name;
  }
}

TEST_F(ImageFilesTest, WhatIsNoFileIsNoPicture) {
  std::filesystem::create_directory(host("/folder.png"));
  EXPECT_FALSE(UIImage::imageWithContentsOfFile("/missing.png"));
  EXPECT_FALSE(UIImage::imageWithContentsOfFile("/folder.png"));
  EXPECT_FALSE(UIImage::imageWithContentsOfFile("/folder.png/picture.png"));
  EXPECT_FALSE(UIImage::imageWithContentsOfFile(""));
  EXPECT_FALSE(UIImage::imageWithContentsOfFile(NSString()));
}

TEST_F(ImageFilesTest, WhatIsCutOffAnywhereIsNoPicture) {
  for (std::size_t size = 0; size < png.size(); ++size) {
    EXPECT_FALSE(load(png.substr(0, size))) << size << " of " << png.size() << " bytes";
  }
}

TEST_F(ImageFilesTest, WhatIsDamagedNeverDoesHarm) {
  ASSERT_TRUE(load(png));
  for (std::size_t place = 0; place < png.size(); ++place) {
    for (const int flip : {0x01, 0x80, 0xff}) {
      std::string damaged = png;
      damaged[place] = static_cast<char>(damaged[place] ^ flip);
      const UIImage loaded = load(damaged);
      // Chunks that the picture does not need may be left out.
      EXPECT_TRUE(!loaded || pixelsOf(loaded) == pixelsOf(picture)) << place;
    }
  }
}

/// A file whose pixels are damaged, and whose check sums say that this is what was written.
std::string writtenWrong(std::string png) {
  constexpr std::size_t field = 4;
  const std::size_t name = png.find("IDAT");
  const std::size_t end = png.find("IEND") - 2 * field;
  png[name + field] = static_cast<char>(~png[name + field]);
  const auto* chunk = reinterpret_cast<const Bytef*>(png.data() + name);
  const auto sum = static_cast<std::uint32_t>(crc32(0, chunk, static_cast<uInt>(end - name)));
  for (std::size_t byte = 0; byte < field; ++byte) {
    png[end + byte] = static_cast<char>(sum >> (8 * (field - 1 - byte)));
  }
  return png;
}

TEST_F(ImageFilesTest, WhatWasWrittenWrongShowsNothing) {
  const UIImage loaded = load(writtenWrong(png));
  ASSERT_TRUE(loaded);
  EXPECT_EQ(bodyOf(loaded).size(), platform::CGSizeMake(12, 8));
  EXPECT_EQ(pixelsOf(loaded), pixelsOf(makePicture(12, 8, 1, transparent)));
}

TEST_F(ImageFilesTest, WhatWasLoadedStaysWhenTheFileGoes) {
  const UIImage loaded = load(png);
  std::filesystem::remove(host("/picture.png"));
  EXPECT_EQ(pixelsOf(loaded), pixelsOf(picture));
}

TEST_F(ImageFilesTest, WhatIsNoPngIsNoPicture) {
  for (const char* text : {"GIF89a", "\xff\xd8\xff\xe0", "<svg/>", "bplist00"}) {
    EXPECT_FALSE(load(text)) << text;
  }
}

TEST_F(ImageFilesTest, WhatUnpacksToTooManyPixelsIsNotDecoded) {
  EXPECT_EQ(pixelsOf(load(manyPixels(2000, 2000))).width, 2000);
  const std::string bomb = manyPixels(2001, 2000);
  ASSERT_GT(bomb.size(), 0);
  ASSERT_LT(bomb.size(), desktop::PhoneFolder::maximumFileSize / 100);
  EXPECT_FALSE(load(bomb));
}

}  // namespace
}  // namespace desktop_tests
