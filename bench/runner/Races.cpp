#include "bench/runner/Races.h"

namespace bench {

std::span<const Race> races() {
  static const Race all[] = {
      {.name = "change",
       .what = "one setting changed, by a page's control, durable on disk (size: keys)",
       .distances = {{15, 1.10}, {1000, 1.25}, {20000, 1.5}},
       .limit = {"plain system calls", "limits/settings"},
       .ours = {"ours", "ours/settings"}},
      {.name = "change-unsynced",
       .what = "the same without waiting for the disk (size: keys)",
       .distances = {{15, 1.15}, {1000, 1.5}, {20000, 2.5}},
       .limit = {"plain system calls", "limits/settings"},
       .ours = {"ours", "ours/settings"}},
      {.name = "read-binary",
       .what = "one setting read, its file loaded anew, binary (size: keys)",
       .distances = {{15, 1.3}, {1000}, {20000}},
       .limit = {"plain system calls", "limits/settings"},
       .ours = {"ours", "ours/settings"}},
      {.name = "read-xml",
       .what = "one setting read, its file loaded anew, XML (size: keys)",
       .distances = {{15, 1.6}, {1000}, {20000}},
       .limit = {"plain system calls", "limits/settings"},
       .ours = {"ours", "ours/settings"}},
      {.name = "catalogue",
       .what = "the animation list made, half of the animations enabled (size: files)",
       .distances = {{100, 1.15}, {10000, 1.15}, {100000, 1.15}},
       .limit = {"getdents", "limits/lists"},
       .ours = {"ours", "ours/lists"},
       .peers = {{"ls -U", "peers/ls"},
                 {"std::filesystem", "peers/filesystem"},
                 {.name = "GNUstep", .program = "peers/gnustep-lists", .largest = 1000}}},
      {.name = "list-disable",
       .what = "an animation disabled, first or last, durable on disk (size: enabled ones)",
       .distances = {{100000, 1.5}},
       .limit = {"plain system calls", "limits/lists"},
       .ours = {"ours", "ours/lists"},
       .peers = {{"GNUstep, unsynced", "peers/gnustep-lists"}}},
      {.name = "list-enable",
       .what = "an animation enabled, durable on disk (size: enabled ones)",
       .distances = {{100000, 1.5}},
       .limit = {"plain system calls", "limits/lists"},
       .ours = {"ours", "ours/lists"},
       .peers = {{"GNUstep, unsynced", "peers/gnustep-lists"}}},
      {.name = "list-move",
       .what = "an animation moved, first to last or back, durable on disk (size: enabled ones)",
       .distances = {{100000, 1.5}},
       .limit = {"plain system calls", "limits/lists"},
       .ours = {"ours", "ours/lists"},
       .peers = {{"GNUstep, unsynced", "peers/gnustep-lists"}}},
  };
  return all;
}

}  // namespace bench
