#pragma once

#include <functional>

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Object.h"
#include "platform/QuartzCore/CALayer.h"
#include "platform/UIKit/NSLayoutConstraint.h"
#include "platform/UIKit/UIColor.h"

namespace platform {

/// How a view shows a content of another size; the numbers are UIKit's.
enum class UIViewContentMode : long {
  ScaleToFill = 0,
  ScaleAspectFit = 1,
  Center = 4,
};

/// Which measures of a view follow those of its superview; the numbers are UIKit's.
enum class UIViewAutoresizing : unsigned long {
  None = 0,
  FlexibleWidth = 1 << 1,
};

/// The numbers are UIKit's.
enum class UIViewAnimationOptions : unsigned long {
  CurveEaseInOut = 0,
  CurveEaseOut = 2 << 16,
};

/// A rectangle on the screen and what it shows.
class UIView : public Object {
 public:
  /// `new`: an empty view of no size.
  static UIView init();

  /// Where the view lies in its superview; all zero for none.
  CGRect frame() const;
  void setFrame(const CGRect& frame);
  /// The view's size, as a rectangle at its own origin.
  CGRect bounds() const;

  CALayer layer() const;

  /// From 0, invisible, to 1.
  void setAlpha(double alpha);
  void setBackgroundColor(const UIColor& color);
  /// Whether nothing is drawn outside of the view's shape.
  void setClipsToBounds(bool clips);
  void setContentMode(UIViewContentMode mode);
  void setAutoresizingMask(UIViewAutoresizing mask);
  void setTintColor(const UIColor& color);
  void setTranslatesAutoresizingMaskIntoConstraints(bool translates);

  NSLayoutAnchor topAnchor() const;
  NSLayoutAnchor leadingAnchor() const;
  NSLayoutAnchor trailingAnchor() const;
  NSLayoutAnchor bottomAnchor() const;

  /// Puts `view` on top of what the view holds.
  void addSubview(const UIView& view);

  /// Runs `animations`, before it returns; what it changes is seen to move there in `duration`
  /// seconds.
  static void animateWithDuration(double duration, const std::function<void()>& animations);

  /// As above, `delay` seconds later. `completion` runs on the main queue when the movement ends,
  /// with whether it got there.
  static void animateWithDuration(double duration, double delay, UIViewAnimationOptions options,
                                  const std::function<void()>& animations,
                                  std::function<void(bool finished)> completion);
};

}  // namespace platform
