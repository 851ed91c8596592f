#include <stdexcept>

#include "bench/peers/Home.h"
#include "bench/peers/Objc.h"
#include "bench/support/Animations.h"
#include "bench/support/Contestant.h"
#include "bench/support/ListTrials.h"

/// The animation list as an Objective-C program keeps it, over GNUstep's arrays. A change is stored
/// once, as XML, the one form that it loads and saves a dictionary in; the file is written aside
/// and renamed, and nothing is synced.
namespace {

using namespace bench;

using Count = unsigned long;

Count count(id array) { return send<Count>(array, "count"); }

id at(id array, Count index) { return send(array, "objectAtIndex:", index); }

id settingsAt(const std::string& path) {
  const id settings =
      send(classNamed("NSMutableDictionary"), "dictionaryWithContentsOfFile:", text(path.c_str()));
  if (!settings) throw std::runtime_error("GNUstep could not load " + path);
  return settings;
}

/// The enabled animations in an array of the caller's own.
id enabledAt(const std::string& path) {
  return send(send(settingsAt(path), "objectForKey:", text("enabledLotties")), "mutableCopy");
}

id animationsIn(const std::string& folder) {
  const id entries = send(send(classNamed("NSFileManager"), "defaultManager"),
                          "contentsOfDirectoryAtPath:error:", text(folder.c_str()), nil);
  const id isAnimation =
      send(classNamed("NSPredicate"), "predicateWithFormat:", text("self ENDSWITH '.lottie'"));
  const id names = send(send(entries, "filteredArrayUsingPredicate:", isAnimation), "mutableCopy");
  for (Count index = 0; index < count(names); ++index) {
    send<void>(names, "replaceObjectAtIndex:withObject:", index,
               send(at(names, index), "stringByDeletingPathExtension"));
  }
  return send(names, "autorelease");
}

Trial catalogue(std::size_t size, const std::filesystem::path& folder) {
  const AnimationFolder made = installAnimations(size, folder, plist::Form::Xml);
  return [animations = made.animations.string(), preferences = made.preferences.string(), size] {
    const Pool pool;
    const id disabled = send(animationsIn(animations), "mutableCopy");
    const id enabled = enabledAt(preferences);
    send<void>(disabled, "removeObjectsInArray:", enabled);
    if (count(disabled) != size - size / 2) throw std::runtime_error("a name is missing");
    send<void>(enabled, "release");
    send<void>(disabled, "release");
  };
}

/// A list that is open, changed at its beginning and at its end in turn.
class OpenList {
 public:
  OpenList(std::size_t size, const std::filesystem::path& folder)
      : path_(enableAnimations(size, folder, plist::Form::Xml).preferences) {
    const Pool pool;
    enabled_ = enabledAt(path_);
    disabled_ = send(classNamed("NSMutableArray"), "new");
  }

  void disable() {
    const Pool pool;
    send<void>(disabled_, "addObject:", take());
    save();
  }

  void enable() {
    const Pool pool;
    const id name = send(send(at(disabled_, 0), "retain"), "autorelease");
    send<void>(disabled_, "removeObject:", name);
    send<void>(enabled_, "insertObject:atIndex:", name, Count{0});
    save();
  }

  void move() {
    const Pool pool;
    const bool toEnd = !atEnd_;
    const id name = take();
    send<void>(enabled_, "insertObject:atIndex:", name, toEnd ? count(enabled_) : Count{0});
    save();
  }

 private:
  /// Takes the name at the beginning, and the next time that at the end.
  id take() {
    const id name = at(enabled_, atEnd_ ? count(enabled_) - 1 : 0);
    send(send(name, "retain"), "autorelease");
    send<void>(enabled_, "removeObject:", name);
    atEnd_ = !atEnd_;
    return name;
  }

  void save() {
    const id settings = settingsAt(path_);
    send<void>(settings, "setObject:forKey:", enabled_, text("enabledLotties"));
    if (!send<BOOL>(settings, "writeToFile:atomically:", text(path_.c_str()), BOOL{1})) {
      throw std::runtime_error("GNUstep could not save");
    }
  }

  std::string path_;
  id enabled_;
  id disabled_;
  bool atEnd_ = false;
};

constexpr Case cases[] = {
    {"catalogue", catalogue},
    {"list-disable", &disabling<OpenList>},
    {"list-enable", &enabling<OpenList>},
    {"list-move", &moving<OpenList>},
};

}  // namespace

int main(int argc, char** argv) {
  startAtHome(argc, argv);
  return compete(argc, argv, cases);
}
