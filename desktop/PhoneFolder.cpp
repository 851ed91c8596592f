#include "desktop/PhoneFolder.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <system_error>
#include <thread>

namespace desktop {

namespace {

constexpr std::string_view asideMark = ".quillmere-aside-";

/// How often an interrupted system call is made again, and how many links lead on to one another.
constexpr int maximumTries = 40;

[[noreturn]] void fail(std::string_view path, int error = errno) {
  throw std::system_error(error, std::generic_category(), std::string(path));
}

void check(int result, std::string_view path) {
  if (result < 0) fail(path);
}

std::string_view parentOf(std::string_view path) { return path.substr(0, path.rfind('/') + 1); }
std::string nameIn(std::string_view path) { return std::string(path.substr(path.rfind('/') + 1)); }

int openInside(const Descriptor& root, std::string_view path, int flags) {
  open_how how{};
  how.flags = static_cast<decltype(how.flags)>(flags | O_CLOEXEC);
  how.resolve = RESOLVE_IN_ROOT | RESOLVE_NO_MAGICLINKS;
  const std::string terminated(path);
  // The kernel asks for another try when a folder was renamed while it walked the path.
  for (int tries = 0; tries < maximumTries; ++tries) {
    const long number = syscall(SYS_openat2, root.number(), terminated.c_str(), &how, sizeof how);
    if (number >= 0 || (errno != EAGAIN && errno != EINTR)) return static_cast<int>(number);
  }
  return -1;
}

std::string readAll(const Descriptor& file, std::size_t size, std::string_view path) {
  std::string bytes(size, '\0');
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t got = ::read(file.number(), bytes.data() + filled, bytes.size() - filled);
    if (got < 0 && errno == EINTR) continue;
    check(static_cast<int>(got < 0 ? -1 : 0), path);
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  bytes.resize(filled);
  return bytes;
}

void writeAll(const Descriptor& file, std::string_view bytes, std::string_view path) {
  while (!bytes.empty()) {
    const ssize_t put = ::write(file.number(), bytes.data(), bytes.size());
    if (put < 0 && errno == EINTR) continue;
    check(static_cast<int>(put < 0 ? -1 : 0), path);
    bytes.remove_prefix(static_cast<std::size_t>(put));
  }
}

/// A name that is free; it does not hold the file's, which may have the greatest length already.
std::string asideName() {
  std::uint64_t random = 0;
  check(static_cast<int>(getrandom(&random, sizeof random, 0)), asideMark);
  return std::string(asideMark) + std::to_string(random);
}

bool isAsideName(std::string_view name) {
  return name.size() > asideMark.size() && name.starts_with(asideMark) &&
         name.find_first_not_of("0123456789", asideMark.size()) == std::string_view::npos;
}

std::string linkTarget(const Descriptor& folder, const std::string& name, std::string_view path) {
  std::array<char, PATH_MAX> target;
  const ssize_t size = readlinkat(folder.number(), name.c_str(), target.data(), target.size());
  if (size < 0) fail(path);
  return {target.data(), static_cast<std::size_t>(size)};
}

/// Makes a new file as the one that it takes the place of: its mode and, where that is allowed,
/// its owner.
void takeAfter(const struct stat& before, const Descriptor& file, std::string_view path) {
  if (fchown(file.number(), before.st_uid, before.st_gid) < 0 && errno != EPERM) fail(path);
  check(fchmod(file.number(), before.st_mode & 07777), path);
}

}  // namespace

/// Where a path ends once the links that stand in the file's own place are followed.
struct PhoneFolder::Place {
  Descriptor folder;
  std::string name;
  /// None when nothing stands there.
  std::optional<struct stat> status;
};

PhoneFolder::Place PhoneFolder::placeOf(std::string path) const {
  for (int links = 0; links < maximumTries; ++links) {
    Place place{openParent(path), nameIn(path), std::nullopt};
    struct stat status {};
    if (fstatat(place.folder.number(), place.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
      place.status = status;
    } else if (errno != ENOENT) {
      fail(path);
    }
    if (!place.status || !S_ISLNK(status.st_mode)) return place;
    const std::string target = linkTarget(place.folder, place.name, path);
    path = target.starts_with('/') ? target : std::string(parentOf(path)).append(target);
  }
  fail(path, ELOOP);
}

PhoneFolder::PhoneFolder(const std::filesystem::path& host)
    : root_(::open(host.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
  check(root_.number(), host.native());
  open("/", O_PATH | O_DIRECTORY);
}

Descriptor PhoneFolder::open(std::string_view path, int flags) const {
  const int number = openInside(root_, path, flags);
  check(number, path);
  return Descriptor(number);
}

Descriptor PhoneFolder::openParent(std::string_view path) const {
  return open(parentOf(path), O_RDONLY | O_DIRECTORY);
}

std::optional<std::string> PhoneFolder::read(std::string_view path) const {
  // O_NONBLOCK: opening a FIFO that stands in the file's place must not wait for a writer.
  const int number = openInside(root_, path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
  if (number < 0 && errno == ENOENT) return std::nullopt;
  check(number, path);
  const Descriptor file(number);
  struct stat status {};
  check(fstat(number, &status), path);
  if (S_ISDIR(status.st_mode)) fail(path, EISDIR);
  if (!S_ISREG(status.st_mode)) fail(path, EINVAL);
  if (static_cast<std::uint64_t>(status.st_size) > maximumFileSize) fail(path, EFBIG);
  return readAll(file, static_cast<std::size_t>(status.st_size), path);
}

void PhoneFolder::replace(std::string_view path, std::string_view bytes) const {
  const Place place = placeOf(std::string(path));
  const Descriptor& folder = place.folder;
  flock(folder.number(), LOCK_SH | LOCK_NB);  // Keeps `sweep` away, and waits for nobody.
  const std::string aside = asideName();
  const int number = openat(folder.number(), aside.c_str(),
                            O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
  check(number, path);
  const Descriptor file(number);
  try {
    if (place.status) {
      takeAfter(*place.status, file, path);
    } else {
      check(fchmod(number, 0644), path);
    }
    writeAll(file, bytes, path);
    check(fsync(number), path);
    check(renameat(folder.number(), aside.c_str(), folder.number(), place.name.c_str()), path);
  } catch (...) {
    unlinkat(folder.number(), aside.c_str(), 0);
    throw;
  }
  check(fsync(folder.number()), path);
}

bool PhoneFolder::remove(std::string_view path) const {
  const Descriptor folder = openParent(path);
  if (unlinkat(folder.number(), nameIn(path).c_str(), 0) < 0) {
    if (errno == ENOENT) return false;
    fail(path);
  }
  check(fsync(folder.number()), path);
  return true;
}

bool PhoneFolder::exists(std::string_view path) const {
  const Descriptor place(openInside(root_, path, O_PATH));
  if (place.number() < 0 && errno != ENOENT && errno != ENOTDIR) fail(path);
  return place.number() >= 0;
}

bool PhoneFolder::isFile(std::string_view path) const {
  const Descriptor place(openInside(root_, path, O_PATH));
  struct stat found {};
  return place.number() >= 0 && fstat(place.number(), &found) == 0 && S_ISREG(found.st_mode);
}

bool PhoneFolder::areSame(std::string_view one, std::string_view other) const {
  struct stat left {};
  struct stat right {};
  check(fstat(open(one, O_PATH).number(), &left), one);
  check(fstat(open(other, O_PATH).number(), &right), other);
  return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

Descriptor PhoneFolder::openFolder(std::string_view path) const {
  return open(path, O_PATH | O_DIRECTORY);
}

void PhoneFolder::list(std::string_view path,
                       const std::function<void(std::string_view name)>& found) const {
  const Descriptor folder = open(path, O_RDONLY | O_DIRECTORY);
  alignas(dirent64) std::array<char, 1 << 16> block;
  for (;;) {
    const ssize_t size = getdents64(folder.number(), block.data(), block.size());
    check(static_cast<int>(size < 0 ? -1 : 0), path);
    if (size == 0) return;
    for (const char* at = block.data(); at < block.data() + size;) {
      const auto& entry = *reinterpret_cast<const dirent64*>(at);
      const std::string_view name = entry.d_name;
      if (name != "." && name != "..") found(name);
      at += entry.d_reclen;
    }
  }
}

std::vector<std::string> PhoneFolder::list(std::string_view path) const {
  std::vector<std::string> names;
  list(path, [&](std::string_view name) { names.emplace_back(name); });
  return names;
}

void PhoneFolder::makeFolders(std::string_view path) const {
  for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
    const std::string_view folder = path.substr(0, end);
    const Descriptor parent = openParent(folder);
    if (mkdirat(parent.number(), nameIn(folder).c_str(), 0755) == 0) {
      check(fsync(parent.number()), folder);  // What is written into it is to last.
    } else if (errno != EEXIST) {
      fail(folder);
    }
    if (end == std::string_view::npos) break;
  }
}

void PhoneFolder::makeLink(std::string_view path, const std::string& target) const {
  const Descriptor folder = openParent(path);
  if (symlinkat(target.c_str(), folder.number(), nameIn(path).c_str()) < 0 && errno != EEXIST) {
    fail(path);
  }
}

Descriptor PhoneFolder::hold(std::chrono::milliseconds patience) const {
  using Clock = std::chrono::steady_clock;
  // Asked for again and again: a signal has to reach the program while it waits.
  constexpr std::chrono::milliseconds pause{2};
  Descriptor folder = open("/", O_RDONLY | O_DIRECTORY);
  for (const auto end = Clock::now() + patience; flock(folder.number(), LOCK_EX | LOCK_NB) < 0;) {
    if (errno != EWOULDBLOCK && errno != EINTR) fail("/");
    if (Clock::now() >= end) fail("/", EWOULDBLOCK);
    std::this_thread::sleep_for(pause);
  }
  return folder;
}

void PhoneFolder::sweep(std::string_view path) const {
  const Descriptor folder = open(path, O_RDONLY | O_DIRECTORY);
  if (flock(folder.number(), LOCK_EX | LOCK_NB) < 0) return;
  for (const std::string& name : list(path)) {
    if (isAsideName(name)) unlinkat(folder.number(), name.c_str(), 0);
  }
}

}  // namespace desktop
