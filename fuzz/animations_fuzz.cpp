#include <filesystem>
#include <fstream>
#include <sys/stat.h>

#include "fuzz/Input.h"
#include "fuzz/OpenedFiles.h"
#include "fuzz/Require.h"
#include "fuzz/Visit.h"
#include "plist/Document.h"

namespace {

namespace fs = std::filesystem;

/// More would only make inputs slow.
constexpr std::size_t maximumRecords = 64;

/// Puts an entry of that kind and name into the folder, as far as its file system takes it. A file
/// holds the whole input: whatever it is, an archive or none, nobody is to find out.
void putEntry(const fs::path& folder, char kind, std::string_view name, std::string_view content) {
  if (name.empty() || name.find('/') != std::string_view::npos) return;
  const fs::path path = folder / name;
  std::error_code refused;
  if (kind == 'f') std::ofstream(path, std::ios::binary) << content;
  if (kind == 'd') fs::create_directory(path, refused);
  if (kind == 'l') fs::create_symlink(name, path, refused);
  if (kind == 'p') mkfifo(path.c_str(), 0600);
}

/// Names that are no text are stored as data, which somebody else's program may do.
plist::Value nameValue(std::string_view name) {
  try {
    return plist::Value::string(name);
  } catch (const std::invalid_argument&) {
    return plist::Value::data(name);
  }
}

std::string storedList(plist::Array names) {
  plist::Dictionary settings;
  settings.set("enabledLotties", plist::Value(std::move(names)));
  return plist::writeBinary(plist::Value(std::move(settings)));
}

/// What an input consists of.
struct Input {
  Input(std::string_view bytes, const fs::path& folder, fuzz::Visit& visit) {
    plist::Array names;
    for (const std::string_view record : fuzz::split(bytes, '\0')) {
      if (record.empty() || ++count > maximumRecords) continue;
      const std::string_view rest = record.substr(1);
      if (record[0] == '{' || record[0] == 'w') {
        messages.push_back(record);
      } else if (record[0] == '<') {
        visit.store(record);
      } else if (record[0] == 'e') {
        names.append(nameValue(rest));
        visit.store(storedList(names));
      } else {
        putEntry(folder, record[0], rest, bytes);
      }
    }
  }

  std::vector<std::string_view> messages;
  std::size_t count = 0;
};

}  // namespace

/// The folder of the animations, dotLottie archives all of them. Nothing of the program opens an
/// archive: the catalogue reads names, and that is what is tried, with entries of any name and
/// kind, any stored list of the enabled ones, and touches on the list. It is required that no entry
/// of the folder is ever opened.
///
/// An input is a list of records, a NUL between them, each of a letter and what belongs to it: "f",
/// "d", "l" and "p" put a file, a folder, a link to itself or a FIFO of that name into the folder,
/// "e" adds a name to the stored list, "<" is a preferences file, and "{" a message to the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static fuzz::Installation installation;
  const fs::path phone = installation.restored();
  const fs::path folder = phone / "Library/Lotties/Quillmere";
  fuzz::Visit visit(phone);
  const Input input(fuzz::view(bytes, size), folder, visit);

  fuzz::OpenedFiles opened(folder);
  visit.open();
  visit.openAnimations();
  visit.viewAllRows();
  for (const std::string_view message : input.messages) visit.say(message);
  fuzz::require(!opened.any(), "an animation was opened");
  return 0;
}
