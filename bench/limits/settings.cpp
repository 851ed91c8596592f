#include <array>
#include <fcntl.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "bench/support/Contestant.h"
#include "bench/support/Preferences.h"
#include "plist/Document.h"

namespace {

using bench::Trial;
using plist::Form;

constexpr std::size_t roomForOne = 16 << 20;

int check(int result) {
  if (result < 0) throw std::system_error(errno, std::generic_category());
  return result;
}

/// A file as deep in folders as the product's, and its bytes.
struct Stored {
  Stored(const std::filesystem::path& host, std::size_t keys, Form form)
      : folder(host / "var/mobile/Library/Preferences"),
        file(folder / "com.orvalen.quillmere.plist"),
        aside(folder / ".aside"),
        bytes(plist::write(plist::Value(bench::preferencesOf(keys)), form).value()) {
    std::filesystem::create_directories(folder);
    replace(false);
  }

  void read() {
    const int number = check(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (::read(number, room.get(), roomForOne) != static_cast<ssize_t>(bytes.size())) {
      throw std::runtime_error("other bytes");
    }
    ::close(number);
  }

  void replace(bool syncs) {
    const int parent = check(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const int number = check(::open(aside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644));
    if (::write(number, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
      throw std::runtime_error("written in part");
    }
    if (syncs) check(::fsync(number));
    ::close(number);
    check(::rename(aside.c_str(), file.c_str()));
    if (syncs) check(::fsync(parent));
    ::close(parent);
  }

  const std::filesystem::path folder;
  const std::filesystem::path file;
  const std::filesystem::path aside;
  const std::string bytes;
  const std::unique_ptr<char[]> room{new char[roomForOne]};
};

Trial changing(std::size_t keys, const std::filesystem::path& host, bool syncs) {
  const auto stored = std::make_shared<Stored>(host, keys, Form::Binary);
  return Trial([stored, syncs] {
    stored->read();
    stored->replace(syncs);
  });
}

Trial reading(std::size_t keys, const std::filesystem::path& host, Form form) {
  const auto stored = std::make_shared<Stored>(host, keys, form);
  return Trial([stored] { stored->read(); });
}

constexpr std::array cases{
    bench::Case{"change",
                [](std::size_t keys, const std::filesystem::path& folder) {
                  return changing(keys, folder, true);
                }},
    bench::Case{"change-unsynced",
                [](std::size_t keys, const std::filesystem::path& folder) {
                  return changing(keys, folder, false);
                }},
    bench::Case{"read-binary",
                [](std::size_t keys, const std::filesystem::path& folder) {
                  return reading(keys, folder, Form::Binary);
                }},
    bench::Case{"read-xml",
                [](std::size_t keys, const std::filesystem::path& folder) {
                  return reading(keys, folder, Form::Xml);
                }},
};

}  // namespace

int main(int argc, char** argv) { return bench::compete(argc, argv, cases); }
