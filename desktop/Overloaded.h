#pragma once

namespace desktop {

/// Several functions as one, for `std::visit`.
template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
// Deduced without this guide since C++20, but not by clang 14.
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

}  // namespace desktop
