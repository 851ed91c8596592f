#include <gtest/gtest.h>

#include "desktop/UIKit/Raster.h"
#include "tests/desktop/Pixels.h"

namespace desktop_tests {
namespace {

using desktop::Raster;
using desktop::Surface;

TEST(RasterTest, IsMadeOnceAndNotBeforeItIsLookedAt) {
  int made = 0;
  const Raster raster(2, 1, [&made]() -> Surface {
    ++made;
    return desktop::makeSurface(2, 1);
  });
  EXPECT_EQ(made, 0);
  EXPECT_EQ(&raster.surface(), &raster.surface());
  EXPECT_EQ(made, 1);
}

TEST(RasterTest, LetsGoOfWhatItWasMadeOf) {
  const auto source = std::make_shared<int>(1);
  const Raster raster(1, 1, [source]() -> Surface { return desktop::makeSurface(1, 1); });
  EXPECT_EQ(source.use_count(), 2);
  raster.surface();
  EXPECT_EQ(source.use_count(), 1);
}

TEST(RasterTest, IsTransparentWhenItCannotBeMade) {
  const Raster raster(2, 3, []() -> Surface { return nullptr; });
  EXPECT_EQ(pixelsOf(&raster.surface()), pixelsOf(makePicture(2, 3, 1, transparent)));
}

TEST(RasterTest, OfPixelsHasTheirSize) {
  const Raster raster(desktop::makeSurface(5, 7));
  EXPECT_EQ(raster.width, 5);
  EXPECT_EQ(raster.height, 7);
}

}  // namespace
}  // namespace desktop_tests
