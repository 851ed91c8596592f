#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/Descriptor.h"

namespace desktop {

/// The stand-in phone's file system: a folder of this computer that is laid out like a phone's.
/// Every path given here is the phone's, absolute; it is resolved inside the folder by the kernel
/// (`openat2` with `RESOLVE_IN_ROOT`, openat2(2)), so that no symlink, absolute ones included,
/// leads out of it. Failures are thrown as `std::system_error`.
class PhoneFolder {
 public:
  /// The most that `read` takes from one file, in bytes.
  static constexpr std::size_t maximumFileSize = 16 << 20;

  /// Throws when `host` is not a folder that can be opened, or the kernel has no `openat2`.
  explicit PhoneFolder(const std::filesystem::path& host);

  /// The bytes of a regular file; none when, and only when, there is no such file. A folder, a
  /// FIFO, a device, a file that may not be read or one over `maximumFileSize` throws.
  std::optional<std::string> read(std::string_view path) const;

  /// Makes the file hold `bytes`, durably and at once: they are written aside, synced and renamed
  /// into place, and the folder is synced. A link in the file's place is followed, and stays. A
  /// replaced file's mode is kept, and its owner where that is allowed; a new one's mode is 0644.
  void replace(std::string_view path, std::string_view bytes) const;

  /// Deletes a file or a link, durably; false when there is none. A folder throws.
  bool remove(std::string_view path) const;

  /// Whether something stands there. Throws when that cannot be found out.
  bool exists(std::string_view path) const;

  /// Whether a regular file stands there; false also when that cannot be found out.
  bool isFile(std::string_view path) const;

  /// Whether both paths lead to the same file or folder.
  bool areSame(std::string_view one, std::string_view other) const;

  /// The folder at the path, for what takes a descriptor instead (`/proc/self/fd`, proc(5));
  /// nothing can be read or written through it.
  Descriptor openFolder(std::string_view path) const;

  /// Names each entry of a folder, in the folder's own order, but for "." and "..".
  void list(std::string_view path, const std::function<void(std::string_view name)>& found) const;
  std::vector<std::string> list(std::string_view path) const;

  /// Makes the folder and those above it, where they are missing.
  void makeFolders(std::string_view path) const;

  /// Makes a symbolic link at `path`, unless something stands there.
  void makeLink(std::string_view path, const std::string& target) const;

  /// Holds the whole folder for this program as long as the answer lives, as far as others ask for
  /// it as well; what merely reads need not. Throws with `std::errc::operation_would_block` when
  /// another program keeps it for longer than `patience`.
  Descriptor hold(std::chrono::milliseconds patience) const;

  /// Deletes what an interrupted `replace` left in a folder. Nothing happens while another program
  /// is replacing a file there.
  void sweep(std::string_view path) const;

 private:
  Descriptor open(std::string_view path, int flags) const;
  Descriptor openParent(std::string_view path) const;

  struct Place;
  Place placeOf(std::string path) const;

  Descriptor root_;
};

}  // namespace desktop
