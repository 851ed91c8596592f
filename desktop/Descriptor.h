#pragma once

#include <unistd.h>
#include <utility>

namespace desktop {

/// An open file descriptor, closed with its owner.
class Descriptor {
 public:
  /// Takes over `number`.
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  int number() const { return number_; }

  /// Gives the descriptor away; the caller closes it.
  int release() { return std::exchange(number_, -1); }

 private:
  int number_;
};

}  // namespace desktop
