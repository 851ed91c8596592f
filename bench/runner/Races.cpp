#include "bench/runner/Races.h"

namespace bench {

namespace {

// Those that wait until what they have written is on the disk; dconf, GKeyFile, libplist and
// plistlib, as ours, until it has its name there as well. Dconf takes seconds for 20,000 keys.
// SQLite writes the pages of one key; QSettings and the key file keep what they have once loaded.
const std::vector<Entry> durable = {
    {.name = "GSettings, dconf", .program = "peers/dconf", .largest = 1000},
    {"GSettings, key file", "peers/gsettings-keyfile"},
    {"KConfig", "peers/kconfig"},
    {"QSettings", "peers/qsettings"},
    {"GKeyFile", "peers/keyfile"},
    {"SQLite", "peers/sqlite"},
    {"libplist", "peers/libplist"},
    {"plistlib", "peers/python-plistlib"},
};

// Those that can do without; GNUstep never waits.
const std::vector<Entry> unsynced = {
    {"GSettings, key file", "peers/gsettings-keyfile"},
    {"KConfig", "peers/kconfig"},
    {"QSettings", "peers/qsettings"},
    {"GKeyFile", "peers/keyfile"},
    {"SQLite", "peers/sqlite"},
    {"libplist", "peers/libplist"},
    {"plistlib", "peers/python-plistlib"},
    {"GNUstep dictionary", "peers/gnustep-dictionary"},
    {"GNUstep defaults", "peers/gnustep-defaults"},
};

const std::vector<Entry> readers = {
    {"libplist", "peers/libplist"},
    {"GKeyFile, its own form", "peers/keyfile"},
    {"plistlib", "peers/python-plistlib"},
    {"GNUstep", "peers/gnustep-dictionary"},
};

/// A change of a long list that is open.
Race listRace(std::string_view name, std::string_view what) {
  return {.name = name,
          .what = what,
          .distances = {{100000, 1.5}},
          .limit = {"plain system calls", "limits/lists"},
          .ours = {"ours", "ours/lists"},
          .peers = {{"GNUstep, unsynced", "peers/gnustep-lists"}}};
}

}  // namespace

std::span<const Race> races() {
  static const Race all[] = {
      {.name = "change",
       .what = "one setting changed, by a page's control, durable on disk (size: keys)",
       .distances = {{15, 1.10}, {1000, 1.25}, {20000, 1.5}},
       .limit = {"plain system calls", "limits/settings"},
       .ours = {"ours", "ours/settings"},
       .peers = durable},
      {.name = "change-unsynced",
       .what = "the same without waiting for the disk (size: keys)",
       .distances = {{15, 1.15}, {1000, 1.5}, {20000, 2.5}},
       .limit = {"plain system calls", "limits/settings"},
       .ours = {"ours", "ours/settings"},
       .peers = unsynced},
      {.name = "read-binary",
       .what = "one setting read, its file loaded anew, binary (size: keys)",
       .distances = {{15, 1.3}, {1000}, {20000}},
       .limit = {"plain system calls", "limits/settings"},
       .ours = {"ours", "ours/settings"},
       .peers = readers},
      {.name = "read-xml",
       .what = "one setting read, its file loaded anew, XML (size: keys)",
       .distances = {{15, 1.6}, {1000}, {20000}},
       .limit = {"plain system calls", "limits/settings"},
       .ours = {"ours", "ours/settings"},
       .peers = readers},
      {.name = "catalogue",
       .what = "the animation list made, half of the animations enabled (size: files)",
       .distances = {{100, 1.15}, {10000, 1.15}, {100000, 1.15}},
       .limit = {"getdents", "limits/lists"},
       .ours = {"ours", "ours/lists"},
       .peers = {{"ls -U", "peers/ls"},
                 {"std::filesystem", "peers/filesystem"},
                 {.name = "GNUstep", .program = "peers/gnustep-lists", .largest = 1000}}},
      listRace("list-disable",
               "an animation disabled, first or last, durable on disk (size: enabled ones)"),
      listRace("list-enable", "an animation enabled, durable on disk (size: enabled ones)"),
      listRace("list-move",
               "an animation moved, first to last or back, durable on disk (size: enabled ones)"),
      {.name = "rescale",
       .what = "a picture scaled to 120 points of 3 pixels (size: its width and height)",
       .distances = {{1024, 1.05}},
       .limit = {"Cairo alone", "limits/pictures"},
       .ours = {"ours", "ours/pictures"},
       .peers = {{"ImageMagick", "peers/magick"}, {"vips", "peers/vips"}}},
      {.name = "start",
       .what = "the program started, until it says where it listens",
       .distances = {{.size = 0, .nanoseconds = 5e6}},
       .limit = {"a bare socket", "limits/start"},
       .ours = {"ours", "ours/start"}},
      {.name = "get",
       .what = "one setting got by a command, from its start to its end (size: settings)",
       .distances = {{15}},
       .limit = {"empty process", "peers/process", "nothing"},
       .ours = {"ours", "peers/process", "ours-get"},
       .peers = {{"gsettings", "peers/process", "gsettings-get"},
                 {"dconf", "peers/process", "dconf-get"},
                 {"kreadconfig5", "peers/process", "kconfig-get"},
                 {"GNUstep defaults", "peers/process", "defaults-get"},
                 {"GNUstep plget", "peers/process", "plget"},
                 {"plistutil", "peers/process", "plistutil"}},
       .first = true},
      {.name = "set",
       .what = "one setting set by a command, from its start to its end (size: settings)",
       .distances = {{15}},
       .limit = {"empty process", "peers/process", "nothing"},
       .ours = {"ours", "peers/process", "ours-set"},
       .peers = {{"gsettings", "peers/process", "gsettings-set"},
                 {"dconf", "peers/process", "dconf-set"},
                 {"kwriteconfig5", "peers/process", "kconfig-set"},
                 {"GNUstep defaults, unsynced", "peers/process", "defaults-set"},
                 {"GNUstep plmerge, unsynced", "peers/process", "plmerge"}},
       .first = true},
  };
  return all;
}

}  // namespace bench
