#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <memory>
#include <plist/plist.h>
#include <stdexcept>
#include <unistd.h>

#include "bench/peers/Settings.h"
#include "bench/peers/Syncs.h"
#include "bench/support/Contestant.h"

/// libplist, which parses and writes property lists in memory: files are read by the standard
/// library, and written aside, synced, renamed, and their folder synced, as ours. Changes are made
/// to a file of the binary form.
namespace {

using namespace bench;

struct Release {
  void operator()(void* list) const { plist_free(list); }
  void operator()(char* bytes) const { std::free(bytes); }
};
using List = std::unique_ptr<void, Release>;
using Bytes = std::unique_ptr<char, Release>;
using Write = decltype(plist_to_bin)*;

List load(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  plist_t list = nullptr;
  plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &list);
  if (!list) throw std::runtime_error("libplist could not load");
  return List(list);
}

void sync(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  const bool done = file >= 0 && fsync(file) == 0;
  close(file);
  if (!done) throw std::runtime_error("cannot sync " + path);
}

void save(plist_t list, const std::filesystem::path& path, Write write) {
  char* written = nullptr;
  std::uint32_t length = 0;
  write(list, &written, &length);
  const Bytes bytes(written);
  const std::string aside = path.string() + ".new";
  std::ofstream(aside, std::ios::binary).write(written, length);
  sync(aside);
  std::filesystem::rename(aside, path);
  sync(path.parent_path());
}

std::string made(std::size_t size, const std::filesystem::path& folder, Write write) {
  const List list(plist_new_dict());
  const auto put = [&](const std::string& key, plist_t value) {
    plist_dict_set_item(list.get(), key.c_str(), value);
  };
  forEachSetting(
      size, Puts{[&](const std::string& key, const std::string& value) {
                   put(key, plist_new_string(value.c_str()));
                 },
                 [&](const std::string& key, int value) {
                   put(key, plist_new_uint(static_cast<std::uint64_t>(value)));
                 },
                 [&](const std::string& key, bool value) { put(key, plist_new_bool(value)); }});
  const std::filesystem::path path = folder / "settings.plist";
  save(list.get(), path, write);
  return path;
}

Trial change(std::size_t size, const std::filesystem::path& folder) {
  return [path = made(size, folder, plist_to_bin), next = std::uint64_t{2}]() mutable {
    const List list = load(path);
    plist_dict_set_item(list.get(), changedKey, plist_new_uint(++next));
    save(list.get(), path, plist_to_bin);
  };
}

template <Write write>
Trial read(std::size_t size, const std::filesystem::path& folder) {
  return [path = made(size, folder, write)] {
    std::uint64_t value = 0;
    plist_get_uint_val(plist_dict_get_item(load(path).get(), changedKey), &value);
    if (value != 2) throw std::runtime_error("libplist read another value");
  };
}

constexpr Case cases[] = {
    {"change", change},
    {"change-unsynced", unsynced<change>},
    {"read-binary", read<plist_to_bin>},
    {"read-xml", read<plist_to_xml>},
};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
