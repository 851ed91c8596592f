#include <stdexcept>

#include "bench/peers/Foundation.h"
#include "bench/peers/Home.h"
#include "bench/support/Contestant.h"

/// Foundation's dictionaries from and to property list files, as GNUstep has them. A change writes
/// a text form of GNUstep's own aside and renames it; nothing is synced, so it competes only where
/// nobody waits for the disk.
namespace {

using namespace bench;

/// NSPropertyListFormat.
enum Form : unsigned long { xml = 100, binary = 200 };

void check(bool done, const char* what) {
  if (!done) throw std::runtime_error(std::string("GNUstep could not ") + what);
}

id load(const std::string& path) {
  const id list =
      send(classNamed("NSMutableDictionary"), "dictionaryWithContentsOfFile:", text(path.c_str()));
  check(list != nil, "load");
  return list;
}

std::string made(std::size_t size, const std::filesystem::path& folder, Form form) {
  const Pool pool;
  const id list = send(classNamed("NSMutableDictionary"), "dictionary");
  fill(list, size);
  id complaint = nil;
  const id bytes = send(classNamed("NSPropertyListSerialization"),
                        "dataFromPropertyList:format:errorDescription:", list,
                        static_cast<unsigned long>(form), &complaint);
  const std::string path = folder / "settings.plist";
  check(send<BOOL>(bytes, "writeToFile:atomically:", text(path.c_str()), BOOL{1}), "save");
  return path;
}

Trial change(std::size_t size, const std::filesystem::path& folder) {
  return [path = made(size, folder, xml), next = 2]() mutable {
    const Pool pool;
    const id list = load(path);
    send<void>(list, "setObject:forKey:", objectOf(++next), text(changedKey));
    check(send<BOOL>(list, "writeToFile:atomically:", text(path.c_str()), BOOL{1}), "save");
  };
}

template <Form form>
Trial read(std::size_t size, const std::filesystem::path& folder) {
  return [path = made(size, folder, form)] {
    const Pool pool;
    const id bytes = send(classNamed("NSData"), "dataWithContentsOfFile:", text(path.c_str()));
    const id list = send(classNamed("NSPropertyListSerialization"),
                         "propertyListWithData:options:format:error:", bytes, 0ul,
                         static_cast<unsigned long*>(nullptr), static_cast<id*>(nullptr));
    const id value = send(list, "objectForKey:", text(changedKey));
    check(send<int>(value, "intValue") == 2, "read");
  };
}

constexpr Case cases[] = {
    {"change-unsynced", change},
    {"read-binary", read<binary>},
    {"read-xml", read<xml>},
};

}  // namespace

int main(int argc, char** argv) {
  startAtHome(argc, argv);
  return compete(argc, argv, cases);
}
