#include "bench/peers/Tools.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/peers/Home.h"
#include "bench/peers/SchemaFile.h"
#include "bench/peers/SessionBus.h"
#include "bench/peers/Settings.h"
#include "bench/support/Preferences.h"
#include "plist/Document.h"

namespace bench {

namespace {

using Folder = std::filesystem::path;
using Kept = std::shared_ptr<void>;

/// Copies a program of this build, as those of others were when they were installed. One that was
/// just linked lies in the kernel's memory in small pieces, each of which costs time at its start.
void install(const char* program, const Folder& path) { std::filesystem::copy_file(program, path); }

Kept prepareNothing(const Tool&, std::size_t, const Folder& folder) {
  install(QUILLMERE_NOTHING, folder / "nothing");
  return {};
}

/// Stores each setting by the tool itself.
void setEach(const Tool& tool, std::size_t size, const Folder& folder) {
  const auto set = [&](const std::string& key, const std::string& value) {
    commandOf(tool.set, key.c_str(), value.c_str(), folder).run();
  };
  forEachSetting(
      size,
      Puts{[&](const std::string& key, const std::string&) { set(key, "'text'"); },
           [&](const std::string& key, int value) { set(key, std::to_string(value)); },
           [&](const std::string& key, bool value) { set(key, value ? tool.on : tool.off); }});
}

Kept prepareHome(const Tool& tool, std::size_t size, const Folder& folder) {
  liveIn(folder);
  setEach(tool, size, folder);
  return {};
}

Kept prepareSession(const Tool& tool, std::size_t size, const Folder& folder) {
  liveIn(folder);
  writeSchema(size, folder);
  setenv("GSETTINGS_SCHEMA_DIR", folder.c_str(), 1);
  setenv("GSETTINGS_BACKEND", "dconf", 1);
  const auto bus = std::make_shared<SessionBus>();
  setEach(tool, size, folder);
  return bus;
}

void write(const plist::Dictionary& settings, plist::Form form, const Folder& path) {
  std::ofstream(path, std::ios::binary) << plist::write(plist::Value(settings), form).value();
}

/// The product's settings, and what is merged into them to turn one on and off. In XML, since not
/// every tool reads the binary form.
Kept writeLists(const Tool& tool, std::size_t size, const Folder& folder) {
  liveIn(folder);
  write(preferencesOf(size), plist::Form::Xml, folder / "settings.plist");
  for (const bool value : {true, false}) {
    plist::Dictionary one;
    one.set(tool.key, plist::Value(value));
    write(one, plist::Form::Xml, folder / (std::string(value ? tool.on : tool.off) + ".plist"));
  }
  return {};
}

/// The first command makes the phone, and the product keeps the binary form.
Kept preparePhone(const Tool& tool, std::size_t size, const Folder& folder) {
  install(QUILLMERE_SETTINGS, folder / "ours");
  commandOf(tool.set, tool.key, tool.on, folder).run();
  write(preferencesOf(size), plist::Form::Binary,
        folder / "phone/var/mobile/Library/Preferences/com.orvalen.quillmere.plist");
  return {};
}

void replace(std::string& word, std::string_view name, std::string_view by) {
  const std::size_t at = word.find(name);
  if (at != std::string::npos) word.replace(at, name.size(), by);
}

}  // namespace

const Tool nothing{"DIR/nothing", "DIR/nothing", "", "", "", prepareNothing};

const Tool ours{"DIR/ours get KEY --root DIR/phone",
                "DIR/ours set KEY VALUE --root DIR/phone",
                "clockEnabled",
                "on",
                "off",
                preparePhone};

const Tool gsettings{"gsettings get bench.settings KEY",
                     "gsettings set bench.settings KEY VALUE",
                     "key00003",
                     "true",
                     "false",
                     prepareSession};

const Tool dconf{"dconf read /bench/settings/KEY",
                 "dconf write /bench/settings/KEY VALUE",
                 "key00003",
                 "true",
                 "false",
                 prepareSession};

const Tool kconfig{"kreadconfig5 --file DIR/settingsrc --group Settings --key KEY",
                   "kwriteconfig5 --file DIR/settingsrc --group Settings --key KEY VALUE",
                   "key00003",
                   "true",
                   "false",
                   prepareHome};

const Tool defaults{"defaults read bench.settings KEY",
                    "defaults write bench.settings KEY VALUE",
                    "key00003",
                    "YES",
                    "NO",
                    prepareHome};

const Tool plmerge{"plget KEY < DIR/settings.plist",
                   "plmerge DIR/settings.plist DIR/VALUE.plist",
                   "clockEnabled",
                   "on",
                   "off",
                   writeLists};

const Tool plistutil{
    "plistutil -i DIR/settings.plist", nullptr, "clockEnabled", "on", "off", writeLists};

Command commandOf(const char* line, const char* key, const char* value,
                  const std::filesystem::path& folder) {
  std::istringstream parts{line};
  std::vector<std::string> words;
  for (std::string word; parts >> word; words.push_back(word)) {
    replace(word, "KEY", key);
    replace(word, "VALUE", value);
    // A path comes last: it may hold any name.
    replace(word, "DIR", folder.native());
  }
  return Command(words);
}

}  // namespace bench
