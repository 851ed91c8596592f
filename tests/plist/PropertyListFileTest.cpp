#include <gtest/gtest.h>
#include <system_error>

#include "desktop/Foundation/PropertyListFile.h"
#include "tests/plist/Build.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using desktop::PropertyListFile;
using plist::Form;
using plist::Value;
using samples::repeated;

constexpr const char* kPath = "/file.plist";

class WrittenFile : public testing::Test {
 protected:
  PropertyListFile given(const std::string& bytes) {
    folder.replace(kPath, bytes);
    return readPropertyList(folder, kPath).value();
  }

  /// Writes it, and expects back what was written.
  Form formAfterWriting(const PropertyListFile& file) {
    writePropertyList(folder, kPath, file);
    const PropertyListFile after = readPropertyList(folder, kPath).value();
    EXPECT_EQ(after.entries.all(), file.entries.all());
    return after.form;
  }

  void expectRefused(const PropertyListFile& file) {
    const std::string before = folder.read(kPath).value();
    try {
      writePropertyList(folder, kPath, file);
      FAIL() << "written";
    } catch (const std::system_error& failure) {
      EXPECT_EQ(failure.code(), std::errc::file_too_large);
    }
    EXPECT_EQ(folder.read(kPath), before);
    EXPECT_NO_THROW(readPropertyList(folder, kPath));
  }

 private:
  support::TemporaryFolder temporary;

 protected:
  desktop::PhoneFolder folder{temporary.path};
};

std::string inDictionary(const std::string& element) {
  return samples::xmlFile("<dict><key>a</key>" + element + "</dict>");
}

TEST_F(WrittenFile, DeepXmlStaysReadable) {
  PropertyListFile file = given(inDictionary(
      repeated("<array>", 490) + repeated("<true/>", 100'000) + repeated("</array>", 490)));
  file.entries.set("b", Value(true));
  EXPECT_EQ(formAfterWriting(file), Form::Xml);
}

TEST_F(WrittenFile, Utf16ThatIsTooLargeInUtf8BecomesBinary) {
  const auto wide = [](const std::string& ascii) { return samples::utf16(ascii, true).substr(2); };
  PropertyListFile file = given(samples::utf16("<plist><dict><key>a</key><string>", true) +
                                std::string(6 << 20, '\x4E') + wide("</string></dict></plist>"));
  file.entries.set("b", Value(true));
  EXPECT_EQ(formAfterWriting(file), Form::Binary);
}

TEST_F(WrittenFile, OneKeyBeyondTheNodesIsRefused) {
  // The dictionary, a key, the array and its elements are 250,000 values.
  for (const Form form : {Form::Xml, Form::Binary}) {
    PropertyListFile file =
        given(inDictionary("<array>" + repeated("<true/>", 249'997) + "</array>"));
    file.form = form;
    EXPECT_EQ(formAfterWriting(file), form);
    file.entries.set("b", Value(true));
    expectRefused(file);
  }
}

TEST_F(WrittenFile, MoreThanAFileHoldsIsRefused) {
  PropertyListFile file = given(inDictionary("<true/>"));
  file.entries.set("b", Value::data(std::string(plist::Limits().bytes, 'x')));
  for (const Form form : {Form::Xml, Form::Binary}) {
    file.form = form;
    expectRefused(file);
  }
}

TEST_F(WrittenFile, TooDeepIsRefused) {
  PropertyListFile file = given(inDictionary("<true/>"));
  Value deep{plist::Array()};
  for (int depth = 2; depth < 512; ++depth) {
    plist::Array outer;
    outer.append(std::move(deep));
    deep = Value(std::move(outer));
  }
  file.entries.set("b", deep);
  EXPECT_EQ(formAfterWriting(file), Form::Xml);
  plist::Array outer;
  outer.append(deep);
  file.entries.set("b", Value(outer));
  expectRefused(file);
}

}  // namespace
