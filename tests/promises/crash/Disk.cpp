#include "tests/promises/crash/Disk.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <linux/loop.h>
#include <sched.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <thread>
#include <unistd.h>

namespace crash_tests {

namespace {

/// The ioctl of both file systems (EXT4_IOC_SHUTDOWN, XFS_IOC_GOINGDOWN), which no header of the
/// system's has.
constexpr unsigned long shutDown = _IOR('X', 125, std::uint32_t);

constexpr std::uintmax_t imageSize = 300U << 20;  // bytes, sparse; xfs takes no less

void check(bool isFine, const std::string& what) {
  if (!isFine) throw std::runtime_error(what + ": " + std::strerror(errno));
}

/// What this process mounts is its own from here on, and goes with it, however it ends.
void leaveMountsOfOthers() {
  static const bool isAlone =
      unshare(CLONE_NEWNS) == 0 && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
  check(isAlone, "no mounts of its own");
}

void makeFileSystem(const std::string& type, const std::filesystem::path& image) {
  std::ofstream(image).close();
  std::filesystem::resize_file(image, imageSize);
  const std::string command = "mkfs." + type + " -q '" + image.string() + "' >/dev/null 2>&1";
  check(std::system(command.c_str()) == 0, "mkfs." + type + " makes no file system");
}

/// A free loop device with the image in it, which is let go of when the last one closes it.
int attach(const std::filesystem::path& image, std::string& name) {
  const int file = open(image.c_str(), O_RDWR | O_CLOEXEC);
  const int control = open("/dev/loop-control", O_RDWR | O_CLOEXEC);
  check(file >= 0 && control >= 0, "no loop devices");
  loop_config config{};
  config.fd = static_cast<std::uint32_t>(file);
  config.info.lo_flags = LO_FLAGS_AUTOCLEAR;
  int device = -1;
  // Others may take the one that is free.
  for (int tries = 0; tries < 20; ++tries) {
    name = "/dev/loop" + std::to_string(ioctl(control, LOOP_CTL_GET_FREE));
    device = open(name.c_str(), O_RDWR | O_CLOEXEC);
    if (device >= 0 && ioctl(device, LOOP_CONFIGURE, &config) == 0) break;
    if (device >= 0) close(device);
    device = -1;
  }
  close(control);
  close(file);
  check(device >= 0, "no loop device takes the image");
  return device;
}

}  // namespace

Disk::Disk(const std::string& type) : type_(type) {
  leaveMountsOfOthers();
  const auto image = folder_.path / "image";
  makeFileSystem(type, image);
  std::filesystem::create_directory(mounted_);
  device_ = attach(image, deviceName_);
  try {
    mount();
  } catch (...) {
    close(device_);
    throw;
  }
}

Disk::~Disk() {
  umount2(mounted_.c_str(), MNT_DETACH);
  close(device_);
}

void Disk::mount() const {
  check(::mount(deviceName_.c_str(), mounted_.c_str(), type_.c_str(), 0, nullptr) == 0,
        type_ + " is not mounted");
}

void Disk::unmount() const {
  // A process that was killed may not have let go of its folder yet.
  for (int tries = 0; tries < 100; ++tries) {
    if (umount2(mounted_.c_str(), 0) == 0) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  check(false, type_ + " is not unmounted");
}

void Disk::sync() const {
  const int folder = open(mounted_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const bool isSynced = syncfs(folder) == 0;
  close(folder);
  check(isSynced, "not synced");
}

void Disk::cutPower(Journal journal) {
  const int folder = open(mounted_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  auto how = static_cast<std::uint32_t>(journal);
  const bool isDown = ioctl(folder, shutDown, &how) == 0;
  close(folder);
  check(isDown, "not shut down");
  unmount();
  mount();
}

}  // namespace crash_tests
