#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "desktop/CoreGraphics/Drawing.h"
#include "desktop/CoreGraphics/Png.h"
#include "fuzz/Visit.h"
#include "settings/PhoneSetup.h"

namespace fuzz {

namespace fs = std::filesystem;

namespace {

constexpr const char* memory = "/dev/shm";

/// What visits leave their traces in.
constexpr const char* changing[] = {"var/mobile/Library", "Library/Lotties/Quillmere"};

fs::path madeFolder() {
  const fs::path parent = fs::is_directory(memory) ? memory : fs::temp_directory_path();
  std::string name = parent / "quillmere-fuzz-XXXXXX";
  if (!mkdtemp(name.data())) throw std::runtime_error("no folder can be made in " + name);
  return name;
}

/// Lets a task of the phone find a package manager that answers at once, whatever this computer
/// has.
void replacePrograms(const fs::path& folder) {
  const fs::path program = folder / "dpkg";
  std::ofstream(program) << "#!/bin/sh\necho 'ii  package  1.0  all  text'\n";
  fs::permissions(program, fs::perms::owner_all);
  setenv("PATH", folder.c_str(), 1);
}

/// Pictures are not what is tried, and to fit them to the screen would take most of the time: flat
/// ones stay flat.
void flattenPictures(const fs::path& folder) {
  const desktop::Surface flat(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 64, 1));
  const std::string bytes = desktop::writePng(*flat);
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() == ".png") std::ofstream(entry.path()) << bytes;
  }
}

}  // namespace

Installation::Installation() : path_(madeFolder()) {
  fs::create_directory(path_ / "programs");
  fs::create_directory(path_ / "phone");
  replacePrograms(path_ / "programs");
  settings::setUpPhone(desktop::PhoneFolder(path_ / "phone"));
  flattenPictures(path_ / "phone");
  for (const char* each : changing) {
    fs::create_directories((path_ / "first" / each).parent_path());
    fs::rename(path_ / "phone" / each, path_ / "first" / each);
  }
}

Installation::~Installation() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

fs::path Installation::restored() {
  for (const char* each : changing) {
    fs::remove_all(path_ / "phone" / each);
    fs::copy(path_ / "first" / each, path_ / "phone" / each, fs::copy_options::recursive);
  }
  return path_ / "phone";
}

}  // namespace fuzz
