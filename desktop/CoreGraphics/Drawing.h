#pragma once

#include "desktop/UIKit/Cairo.h"
#include "desktop/UIKit/ColorBody.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace desktop {

/// The most pixels that a picture may have: what 16 MB hold. The phone's screen has 3 million at
/// three to a point.
inline constexpr double maximumPixels = 4'000'000;

/// Whether a picture may have that many pixels in each direction: some, `maximumPixels` in all, and
/// no more than Cairo can number.
bool isBearable(double width, double height);

/// A transparent surface of premultiplied ARGB, in pixels; null when it cannot be made.
Surface makeSurface(int width, int height);

/// A copy of a surface as premultiplied ARGB, in which no color is stronger than its alpha; null
/// when it cannot be made.
Surface copyOf(cairo_surface_t& pixels);

/// Makes no color stronger than its alpha, as filters that sharpen may have left them.
void boundColors(cairo_surface_t& pixels);

/// Whether a rectangle has an area, and lies where the context can draw.
bool canDraw(cairo_t& context, const platform::CGRect& rect);

/// Draws from now on in that colour.
void setColor(cairo_t& context, const ColorBody& color);

/// Adds a rectangle with round corners to the path; `radius` in points, as much of it as fits.
void traceRounded(cairo_t& context, const platform::CGRect& rect, double radius);

/// Draws a surface, stretched to fill `rect`. Nothing happens when that cannot be drawn.
void drawStretched(cairo_t& context, cairo_surface_t& pixels, const platform::CGRect& rect);

/// Draws the shape of a surface in a colour, stretched to fill `rect`.
void drawShape(cairo_t& context, cairo_surface_t& pixels, const platform::CGRect& rect,
               const ColorBody& color);

}  // namespace desktop
