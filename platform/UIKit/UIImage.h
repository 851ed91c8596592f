#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

/// What of a picture is drawn; the numbers are UIKit's.
enum class UIImageRenderingMode : long {
  Automatic = 0,
  AlwaysOriginal = 1,
  /// Its shape alone, in the tint colour of the view that shows it.
  AlwaysTemplate = 2,
};

/// A picture, which never changes.
class UIImage : public Object {
 public:
  /// The picture of a PNG file; a name that ends in "@2x" or "@3x" says how many pixels it has to
  /// a point, else that is one. None when the file is missing or no picture.
  static UIImage imageWithContentsOfFile(const NSString& path);

  /// The same picture, drawn in that mode from now on.
  UIImage imageWithRenderingMode(UIImageRenderingMode mode) const;

  /// Draws the picture into the current context, stretched to fill `rect`.
  void drawInRect(const CGRect& rect) const;
};

}  // namespace platform
