#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>
#include <sys/single_threaded.h>
#include <utility>

namespace plist {

/// Bytes that any number of values take slices of: one allocation carries all text of a file.
/// Counted by hand, because a whole block of references can then be taken and returned at once, and
/// because a program of one thread need not pay for others.
struct Buffer {
  explicit Buffer(std::string taken) noexcept : bytes(std::move(taken)) {}
  Buffer(const Buffer&) = delete;
  Buffer& operator=(const Buffer&) = delete;

  void retain(std::uint32_t count = 1) noexcept {
    if (__libc_single_threaded) {
      references.store(left() + count, std::memory_order_relaxed);
    } else {
      references.fetch_add(count, std::memory_order_relaxed);
    }
  }
  void release(std::uint32_t count = 1) noexcept {
    if (!__libc_single_threaded) {
      if (references.fetch_sub(count, std::memory_order_acq_rel) == count) delete this;
    } else if (left() == count) {
      delete this;
    } else {
      references.store(left() - count, std::memory_order_relaxed);
    }
  }

  /// Whether more than one value holds it.
  [[nodiscard]] bool isShared() const noexcept {
    return references.load(std::memory_order_acquire) != 1;
  }

  std::string bytes;  ///< Grows only while its one reader fills it.
  std::atomic<std::uint32_t> references{1};

 private:
  ~Buffer() = default;

  std::uint32_t left() const noexcept { return references.load(std::memory_order_relaxed); }
};

/// One owner's reference to a buffer, and references taken in advance for the values it makes.
class BufferLoan {
 public:
  explicit BufferLoan(std::string bytes) : buffer_(new Buffer(std::move(bytes))) {}
  BufferLoan(const BufferLoan&) = delete;
  BufferLoan& operator=(const BufferLoan&) = delete;
  // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): other references may outlive this one
  ~BufferLoan() { buffer_->release(left_ + 1); }

  std::string& bytes() noexcept { return buffer_->bytes; }

  /// A reference for one value, which has to release it.
  Buffer* take() noexcept {
    if (left_ == 0) {
      buffer_->retain(kBlock);
      left_ = kBlock;
    }
    --left_;
    return buffer_;
  }

 private:
  static constexpr std::uint32_t kBlock = 1024;
  Buffer* buffer_;
  std::uint32_t left_ = 0;
};

/// Returns the references of many values with one atomic operation for each run of one buffer.
class BufferReturn {
 public:
  BufferReturn() = default;
  BufferReturn(const BufferReturn&) = delete;
  BufferReturn& operator=(const BufferReturn&) = delete;
  ~BufferReturn() { flush(); }

  void add(Buffer* buffer) noexcept {
    if (buffer != buffer_) {
      flush();
      buffer_ = buffer;
    }
    ++count_;
  }

 private:
  void flush() noexcept {
    if (buffer_ != nullptr) buffer_->release(count_);
    count_ = 0;
  }

  Buffer* buffer_ = nullptr;
  std::uint32_t count_ = 0;
};

}  // namespace plist
