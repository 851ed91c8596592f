#pragma once

#include <cairo.h>
#include <memory>

namespace desktop {

/// Gives up one reference to one of Cairo's objects.
struct CairoRelease {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};

/// One reference to one of Cairo's objects each; null for none.
using Surface = std::unique_ptr<cairo_surface_t, CairoRelease>;
using Context = std::unique_ptr<cairo_t, CairoRelease>;
using Pattern = std::unique_ptr<cairo_pattern_t, CairoRelease>;

/// Takes the changes of a context's state back when it goes.
class SavedState {
 public:
  explicit SavedState(cairo_t& context) : context_(context) { cairo_save(&context_); }
  SavedState(const SavedState&) = delete;
  SavedState& operator=(const SavedState&) = delete;
  ~SavedState() { cairo_restore(&context_); }

 private:
  cairo_t& context_;
};

}  // namespace desktop
