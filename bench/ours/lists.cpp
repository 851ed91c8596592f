#include "bench/support/Animations.h"
#include "bench/support/Contestant.h"
#include "bench/support/ListTrials.h"
#include "desktop/FreedMemory.h"
#include "desktop/Phone.h"
#include "lotties/QMLottiesList.h"

namespace {

using bench::Trial;

/// What a visit to the list does before it shows anything, and what the end of it gives back.
Trial catalogue(std::size_t size, const std::filesystem::path& folder) {
  bench::installAnimations(size, folder);
  auto phone = std::make_shared<desktop::Phone>(folder);
  return [phone, size] {
    quillmere::QMLottiesList list;
    if (!list.init() || list.disabledViews.count() != size - size / 2) {
      throw std::runtime_error("not all animations are listed");
    }
  };
}

/// A list that is open, and what fingers do to it, at its beginning and at its end in turn.
class OpenList {
 public:
  OpenList(std::size_t size, const std::filesystem::path& folder)
      : file_(bench::enableAnimations(size, folder)), phone_(folder), last_(size - 1) {
    if (!list_.init() || list_.enabledViews.count() != size) {
      throw std::runtime_error("the list was not read");
    }
  }

  void disable() {
    list_.commitEditingStyle(list_.tableView, platform::UITableViewCellEditingStyle::Delete,
                             {0, atEnd_ ? last_ : 0});
    atEnd_ = !atEnd_;
  }

  void enable() {
    list_.commitEditingStyle(list_.tableView, platform::UITableViewCellEditingStyle::Insert,
                             {1, 0});
  }

  void move() {
    list_.moveRowAtIndexPath(list_.tableView, {0, atEnd_ ? last_ : 0}, {0, atEnd_ ? 0 : last_});
    atEnd_ = !atEnd_;
  }

 private:
  bench::AnimationFolder file_;
  desktop::Phone phone_;
  quillmere::QMLottiesList list_;
  std::size_t last_;
  bool atEnd_ = false;
};

constexpr bench::Case cases[] = {
    {"catalogue", &catalogue},
    {"list-disable", &bench::disabling<OpenList>},
    {"list-enable", &bench::enabling<OpenList>},
    {"list-move", &bench::moving<OpenList>},
};

}  // namespace

int main(int argc, char** argv) {
  desktop::keepFreedMemory();  // As the program does.
  return bench::compete(argc, argv, cases);
}
