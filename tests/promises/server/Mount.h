#pragma once

#include <cstddef>
#include <filesystem>

namespace promises {

/// A small disk on a folder, for as long as this lives. Only root may mount one, and not
/// everywhere.
class Mount {
 public:
  /// `size` in bytes.
  Mount(const std::filesystem::path& folder, std::size_t size);
  Mount(const Mount&) = delete;
  Mount& operator=(const Mount&) = delete;
  ~Mount();

  /// Whether it was allowed.
  explicit operator bool() const { return isMounted_; }

  /// Leaves no room on it, until it is emptied.
  void fill() const;
  void empty() const;

 private:
  std::filesystem::path filling() const { return folder_ / "filling"; }

  const std::filesystem::path folder_;
  const bool isMounted_;
};

}  // namespace promises
