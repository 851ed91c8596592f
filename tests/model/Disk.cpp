#include "tests/model/Disk.h"

#include <fstream>
#include <iterator>

namespace model {

namespace fs = std::filesystem;

namespace {

using State = Kept::State;
using Texts = std::map<std::string, std::string>;

std::string lines(const std::string& title, const Texts& texts) {
  std::string all = title + '\n';
  for (const auto& [key, text] : texts) all.append("  ").append(key + " = ").append(text + '\n');
  return all;
}

std::string fileLines(State state, plist::Form form, const Texts& texts) {
  if (state == State::Missing) return "no file\n";
  if (state == State::Unreadable) return "an unreadable file\n";
  return lines(form == plist::Form::Xml ? "a file of XML" : "a binary file", texts);
}

std::string pendingLines(bool cleared, const Texts& texts) {
  if (!cleared && texts.empty()) return "";
  return lines(cleared ? "kept beside it: all keys removed, then" : "kept beside it:", texts);
}

Texts textsOf(const Items& items) {
  Texts texts;
  for (const auto& [key, item] : items) texts[key] = textOf(valueOf(item));
  return texts;
}

Texts textsOf(const plist::Dictionary& dictionary) {
  Texts texts;
  for (const auto& entry : dictionary) texts[std::string(entry.key())] = textOf(entry.value());
  return texts;
}

/// The document in a file; none when there is no such file.
std::optional<plist::Document> documentIn(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return plist::read(std::string(std::istreambuf_iterator<char>(file), {}));
}

std::string fileOnDisk(const fs::path& path) {
  try {
    const auto document = documentIn(path);
    if (!document) return fileLines(State::Missing, {}, {});
    return fileLines(State::Readable, document->form, textsOf(*document->root.dictionary()));
  } catch (const plist::Unreadable&) {
    return fileLines(State::Unreadable, {}, {});
  }
}

std::string pendingOnDisk(const fs::path& path) {
  const auto document = documentIn(path);
  if (!document) return "";
  const plist::Dictionary& changes = *document->root.dictionary();
  const plist::Value* const cleared = changes.find("cleared");
  return pendingLines(cleared && cleared->boolean() == true,
                      textsOf(*changes.find("set")->dictionary()));
}

}  // namespace

std::string textOf(const Kept& kept) {
  return fileLines(kept.state, kept.form, textsOf(kept.items)) +
         pendingLines(kept.cleared, textsOf(kept.pending));
}

std::string textOnDisk(const fs::path& phone) {
  const fs::path file = phone / "var/mobile/Library/Preferences/com.orvalen.quillmere.plist";
  return fileOnDisk(file) + pendingOnDisk(file.string() + ".pending");
}

Names leftAside(const fs::path& phone) {
  Names names;
  for (const auto& entry : fs::recursive_directory_iterator(phone)) {
    if (entry.path().filename().string().starts_with(".quillmere-aside-")) {
      names.push_back(entry.path().lexically_relative(phone));
    }
  }
  return names;
}

Names animationsIn(const fs::path& phone) {
  Names names;
  for (const auto& entry : fs::directory_iterator(phone / "Library/Lotties/Quillmere")) {
    if (entry.path().extension() == ".lottie") names.push_back(entry.path().stem());
  }
  return names;
}

}  // namespace model
