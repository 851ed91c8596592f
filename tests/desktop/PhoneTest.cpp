#include "tests/desktop/PhoneTest.h"

#include <algorithm>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace desktop_tests {

namespace fs = std::filesystem;

namespace {

constexpr uid_t nobody = 65534;

}  // namespace

Unprivileged::Unprivileged(const fs::path& ownFolder) {
  if (getuid() != 0) return;
  EXPECT_EQ(chown(ownFolder.c_str(), nobody, nobody), 0);
  EXPECT_EQ(seteuid(nobody), 0);
}

void Unprivileged::end() const {
  if (getuid() != 0) return;
  EXPECT_EQ(seteuid(0), 0);
  // A change of user takes the right to be traced, which the leak check at the end needs.
  prctl(PR_SET_DUMPABLE, 1);
}

void writeBytes(const fs::path& file, std::string_view bytes) {
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream << bytes;
  ASSERT_TRUE(stream.flush()) << file;
}

std::string bytesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  EXPECT_TRUE(stream) << file;
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> namesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
  std::ranges::sort(names);
  return names;
}

std::string portrait(const fs::path& file) {
  struct stat status {};
  if (lstat(file.c_str(), &status) != 0) return "nothing";
  std::string text = std::to_string(status.st_mode) + ' ' + std::to_string(status.st_ino) + ' ' +
                     std::to_string(status.st_size) + ' ' + std::to_string(status.st_mtim.tv_sec) +
                     '.' + std::to_string(status.st_mtim.tv_nsec);
  constexpr off_t comparable = 1 << 24;
  const bool isReadable = faccessat(AT_FDCWD, file.c_str(), R_OK, AT_EACCESS) == 0;
  if (S_ISREG(status.st_mode) && status.st_size < comparable && isReadable) {
    text += ' ' + bytesOf(file);
  }
  return text;
}

PhoneTest::PhoneTest()
    : file(folder.path / std::string(path).substr(1)), pendingFile(file.string() + ".pending") {
  fs::create_directories(file.parent_path());
  restart();
}

PhoneTest::~PhoneTest() {
  std::error_code ignored;
  for (const fs::path& each : {file.parent_path(), file, pendingFile}) {
    if (!fs::is_symlink(each)) fs::permissions(each, fs::perms::owner_all, ignored);
  }
}

fs::path PhoneTest::host(std::string_view phonePath) const {
  return folder.path / phonePath.substr(1);
}

void PhoneTest::restart() {
  phone.reset();
  phone.emplace(folder.path);
  phone->report = [this](const std::string& line) { reports.push_back(line); };
}

void PhoneTest::storeOne(const char* key, int value, plist::Form form) {
  plist::Dictionary dictionary;
  dictionary.set(key, plist::Value::integer(value));
  writeBytes(file, plist::write(plist::Value(dictionary), form).value());
}

bool PhoneTest::reported(std::string_view part) const {
  return std::ranges::any_of(
      reports, [&](const std::string& line) { return line.find(part) != std::string::npos; });
}

}  // namespace desktop_tests
