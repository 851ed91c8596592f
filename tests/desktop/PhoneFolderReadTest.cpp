#include <cstdint>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <system_error>

#include "desktop/Descriptor.h"
#include "desktop/PhoneFolder.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using desktop::PhoneFolder;

class PhoneFolderRead : public PhoneTest {
 protected:
  /// The error that reading the preferences file throws; 0 when it throws none.
  int errorOfReading() const {
    try {
      phone->folder.read(path);
      return 0;
    } catch (const std::system_error& failure) {
      return failure.code().value();
    }
  }
};

TEST_F(PhoneFolderRead, GivesEveryByteOfAFile) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  writeBytes(file, bytes);
  EXPECT_EQ(phone->folder.read(path), bytes);
}

TEST_F(PhoneFolderRead, GivesAnEmptyFileAsNoBytes) {
  writeBytes(file, "");
  EXPECT_EQ(phone->folder.read(path), "");
}

TEST_F(PhoneFolderRead, AnswersNoneForAMissingFile) {
  EXPECT_EQ(phone->folder.read(path), std::nullopt);
}

TEST_F(PhoneFolderRead, AnswersNoneForAFileInAMissingFolder) {
  EXPECT_EQ(phone->folder.read("/no/such/folder/file"), std::nullopt);
}

TEST_F(PhoneFolderRead, ThrowsForAFolder) {
  std::filesystem::create_directory(file);
  EXPECT_EQ(errorOfReading(), EISDIR);
}

TEST_F(PhoneFolderRead, ThrowsForAFifoWithoutWaitingForAWriter) {
  ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
  EXPECT_EQ(errorOfReading(), EINVAL);
}

TEST_F(PhoneFolderRead, ThrowsForASocket) {
  const desktop::Descriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(file.string().size(), sizeof address.sun_path);
  file.string().copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(bind(socket.number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(errorOfReading(), ENXIO);
}

TEST_F(PhoneFolderRead, ThrowsForADevice) {
  const PhoneFolder computer("/");
  EXPECT_THROW(computer.read("/dev/zero"), std::system_error);
}

TEST_F(PhoneFolderRead, ThrowsForAFileThatMayNotBeRead) {
  writeBytes(file, "secret");
  std::filesystem::permissions(file, std::filesystem::perms::none);
  EXPECT_EQ(errorOfReading(), EACCES);
}

TEST_F(PhoneFolderRead, ThrowsForAFileInAFolderThatMayNotBeEntered) {
  writeBytes(file, "secret");
  std::filesystem::permissions(file.parent_path(), std::filesystem::perms::none);
  EXPECT_EQ(errorOfReading(), EACCES);
}

TEST_F(PhoneFolderRead, ThrowsForAFileWhereAFolderShouldBe) {
  writeBytes(file, "a file");
  EXPECT_THROW(phone->folder.read(std::string(path) + "/inside"), std::system_error);
}

TEST_F(PhoneFolderRead, TakesAFileOfTheGreatestSize) {
  writeBytes(file, "start");
  std::filesystem::resize_file(file, PhoneFolder::maximumFileSize);
  const auto bytes = phone->folder.read(path);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->size(), PhoneFolder::maximumFileSize);
  EXPECT_TRUE(bytes->starts_with("start"));
}

TEST_F(PhoneFolderRead, ThrowsForAFileOverTheGreatestSize) {
  writeBytes(file, "");
  std::filesystem::resize_file(file, PhoneFolder::maximumFileSize + 1);
  EXPECT_EQ(errorOfReading(), EFBIG);
}

TEST_F(PhoneFolderRead, SaysWhichPathItWas) {
  std::filesystem::create_directory(file);
  try {
    phone->folder.read(path);
    FAIL() << "a folder was read";
  } catch (const std::system_error& failure) {
    EXPECT_NE(std::string(failure.what()).find(path), std::string::npos) << failure.what();
  }
}

TEST_F(PhoneFolderRead, NeedsAFolderThatIsThere) {
  EXPECT_THROW(PhoneFolder(folder.path / "missing"), std::system_error);
}

TEST_F(PhoneFolderRead, NeedsAFolderAndNoFile) {
  writeBytes(file, "");
  EXPECT_THROW(PhoneFolder{file}, std::system_error);
}

}  // namespace
}  // namespace desktop_tests
