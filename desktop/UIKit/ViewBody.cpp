#include "desktop/UIKit/ViewBody.h"

namespace desktop {

namespace {

unsigned lastNumber = 0;

}  // namespace

ViewBody::ViewBody() : number(++lastNumber) {}

std::string_view nameOf(Edge edge) {
  constexpr std::string_view names[] = {"top", "leading", "trailing", "bottom"};
  return names[static_cast<std::size_t>(edge)];
}

}  // namespace desktop
