#include <cmath>
#include <ctime>
#include <fstream>
#include <gtest/gtest.h>

#include "desktop/CoreGraphics/Drawing.h"
#include "desktop/CoreGraphics/Png.h"
#include "settings/PhoneSetup.h"
#include "tests/plist/OpenedPhone.h"
#include "tests/support/Figures.h"
#include "tests/support/TemporaryFolder.h"

namespace plist_tests {
namespace {

constexpr std::size_t mebibyte = 1024 * 1024;

/// What this program has of the computer's memory, in bytes: "VmRSS" now, "VmHWM" at the most since
/// the last call of forgetMost() (proc(5)).
std::size_t memory(const std::string& which) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    std::size_t kibibytes = 0;
    if (word == which + ":" && status >> kibibytes) return kibibytes * 1024;
  }
  throw std::runtime_error("/proc/self/status does not tell " + which);
}

void forgetMost() { std::ofstream("/proc/self/clear_refs") << "5"; }

/// A picture of as many pixels as are read, in the form that takes most: it has to be copied.
std::string largestPicture() {
  const int side = static_cast<int>(std::sqrt(desktop::maximumPixels));
  const desktop::Surface pixels(cairo_image_surface_create(CAIRO_FORMAT_RGB24, side, side));
  return desktop::writePng(*pixels);
}

class LargePictureTest : public testing::Test {
 protected:
  LargePictureTest() { settings::setUpPhone(desktop::PhoneFolder(folder.path)); }

  const support::TemporaryFolder folder;
};

TEST_F(LargePictureTest, CostsLessThan64MebibytesAndASecond) {
  // What is loaded and made once does not count.
  { OpenedPhone phone(folder.path); }
  const std::string bytes = largestPicture();
  for (const char* name : {"Header.png", "Icon@2x.png", "Designer@3x.png"}) {
    desktop::PhoneFolder(folder.path)
        .replace(std::string("/Library/PreferenceBundles/Quillmere.bundle/") + name, bytes);
  }
  const std::size_t before = memory("VmRSS");
  forgetMost();
  const std::clock_t start = std::clock();
  OpenedPhone phone(folder.path);
  for (const auto& [id, node] : phone.look()) {
    const auto source = node.find("source");
    if (source == node.end() || !source->is_string()) continue;
    EXPECT_TRUE(phone.screen().file(source->get<std::string>(), phone.pictures())) << *source;
  }
  const std::clock_t time = std::clock() - start;
  const std::size_t most = memory("VmHWM") - before;
  EXPECT_LT(most, 64 * mebibyte);
  EXPECT_LT(time, CLOCKS_PER_SEC);
  support::note("large pictures in the bundle",
                std::to_string(most / mebibyte) + " MiB, " +
                    std::to_string(time * 1000 / CLOCKS_PER_SEC) + " ms",
                "under 64 MiB and 1 s");
}

}  // namespace
}  // namespace plist_tests
