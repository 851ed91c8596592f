#include "tests/device/doubles/Bridge.h"

#import <CepheiPrefs/HBRootListController.h>
#import <MessageUI/MessageUI.h>
#include <string>
#include <unordered_map>

#include "desktop/UIKit/ControllerState.h"
#include "platform/Bundle.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/UIKit/UITableViewDataSource.h"
#include "platform/UIKit/UITableViewDelegate.h"
#include "tests/device/doubles/Double.h"
#include "tests/device/doubles/Event.h"
#include "tests/device/doubles/Messages.h"

namespace doubles {

using platform::Animated;

namespace {

/// As Settings does it.
id initialised(UIViewController* controller) {
  return [controller respondsToSelector:@selector(initForContentSize:)]
             ? [(::PSViewController*)controller initForContentSize:CGSize()]
             : [controller init];
}

/// What the two kinds of controllers have in common.
template <class Super>
class ControllerBridge : public Super, public Bridge {
 public:
  explicit ControllerBridge(UIViewController* controller)
      : controller_(controller), methods_(methodsOf(controller)) {
    desktop::stateOf(*this).className = object_getClassName(controller);
  }

  platform::UIViewController& controller() override { return *this; }
  UIViewController* behind() const { return controller_; }

  bool init() override {
    return event([&] {
      // It takes over one retain, and gives one back unless it refuses.
      UIViewController* made = initialised([controller_ retain]);
      [made release];
      return made != nil;
    });
  }
  void viewDidLoad() override {
    event([&] { [controller_ viewDidLoad]; });
  }
  void viewWillAppear(Animated animated) override {
    event([&] { [controller_ viewWillAppear:animated == Animated::Yes]; });
  }
  void viewDidAppear(Animated animated) override {
    event([&] { [controller_ viewDidAppear:animated == Animated::Yes]; });
  }
  std::span<const platform::Method> methods() const override { return methods_; }

  bool superInit() override { return Super::init(); }
  void superViewDidLoad() override { Super::viewDidLoad(); }
  void superViewWillAppear(Animated animated) override { Super::viewWillAppear(animated); }
  void superViewDidAppear(Animated animated) override { Super::viewDidAppear(animated); }

  platform::UIView view() override { return Super::view(); }
  platform::UINavigationItem navigationItem() const override { return Super::navigationItem(); }
  platform::UINavigationController navigationController() const override {
    return Super::navigationController();
  }
  void present(const platform::Object& shown, Animated animated) override {
    Super::presentViewController(shown, animated);
  }
  void dismiss(Animated animated) override { Super::dismissViewController(animated); }

 private:
  UIViewController* controller_;
  std::vector<platform::Method> methods_;
};

class PageBridge final : public ControllerBridge<platform::HBRootListController>,
                         public ListBridge,
                         public platform::MFMailComposeViewControllerDelegate {
 public:
  using ControllerBridge::ControllerBridge;

  platform::NSArray specifiers() override {
    return event([&] {
      // The same list is the same object on the stand-in's side too.
      NSArray* list = [(::PSListController*)behind() specifiers];
      if (list != seen_) {
        [seen_ release];
        seen_ = [list retain];
        specifiers_ = handle<platform::NSArray>(list);
      }
      return specifiers_;
    });
  }
  ~PageBridge() override { [seen_ release]; }

  platform::PSListController& list() override { return *this; }
  void superSpecifiers() override { HBRootListController::specifiers(); }
  platform::UITableView table() override { return HBRootListController::table(); }
  platform::NSArray load(const platform::NSString& name,
                         platform::PSListController& target) override {
    return loadSpecifiersFromPlistName(name, target);
  }
  void setAppearance(const platform::HBAppearanceSettings& settings) override {
    hb_setAppearanceSettings(settings);
  }

  void didFinishWithResult(const platform::MFMailComposeViewController& composer,
                           platform::MFMailComposeResult result,
                           const platform::NSError& error) override {
    event([&] {
      [(id<MFMailComposeViewControllerDelegate>)behind()
          mailComposeController:object(composer)
            didFinishWithResult:MFMailComposeResult(result)
                          error:object(error)];
    });
  }

 private:
  NSArray* seen_ = nil;
  platform::NSArray specifiers_;
};

::NSIndexPath* pathTo(const platform::NSIndexPath& path) {
  return [::NSIndexPath indexPathForRow:NSInteger(path.row) inSection:NSInteger(path.section)];
}

class TableBridge final : public ControllerBridge<platform::UIViewController>,
                          public platform::UITableViewDataSource,
                          public platform::UITableViewDelegate {
 public:
  using ControllerBridge::ControllerBridge;
  using Table = platform::UITableView;
  using Path = platform::NSIndexPath;
  using Style = platform::UITableViewCellEditingStyle;

  std::size_t numberOfSectionsInTableView(const Table& table) override {
    return event([&] { return std::size_t([list() numberOfSectionsInTableView:object(table)]); });
  }
  platform::NSString titleForHeaderInSection(const Table& table, std::size_t section) override {
    return event([&] {
      return handle<platform::NSString>([list() tableView:object(table)
                                  titleForHeaderInSection:NSInteger(section)]);
    });
  }
  std::size_t numberOfRowsInSection(const Table& table, std::size_t section) override {
    return event([&] {
      return std::size_t([list() tableView:object(table) numberOfRowsInSection:NSInteger(section)]);
    });
  }
  platform::UITableViewCell cellForRowAtIndexPath(Table table, const Path& path) override {
    return event([&] {
      return handle<platform::UITableViewCell>([list() tableView:object(table)
                                           cellForRowAtIndexPath:pathTo(path)]);
    });
  }
  bool canEditRowAtIndexPath(const Table& table, const Path& path) override {
    return event(
        [&] { return [list() tableView:object(table) canEditRowAtIndexPath:pathTo(path)]; });
  }
  bool canMoveRowAtIndexPath(const Table& table, const Path& path) override {
    return event(
        [&] { return [list() tableView:object(table) canMoveRowAtIndexPath:pathTo(path)]; });
  }
  void commitEditingStyle(const Table& table, Style style, const Path& path) override {
    event([&] {
      [list() tableView:object(table)
          commitEditingStyle:UITableViewCellEditingStyle(style)
           forRowAtIndexPath:pathTo(path)];
    });
  }
  void moveRowAtIndexPath(const Table& table, const Path& source,
                          const Path& destination) override {
    event([&] {
      [list() tableView:object(table)
          moveRowAtIndexPath:pathTo(source)
                 toIndexPath:pathTo(destination)];
    });
  }
  Style editingStyleForRowAtIndexPath(const Table& table, const Path& path) override {
    return event([&] {
      return Style([list() tableView:object(table) editingStyleForRowAtIndexPath:pathTo(path)]);
    });
  }
  bool shouldIndentWhileEditingRowAtIndexPath(const Table& table, const Path& path) override {
    return event([&] {
      return [list() tableView:object(table) shouldIndentWhileEditingRowAtIndexPath:pathTo(path)];
    });
  }
  Path targetIndexPathForMoveFromRowAtIndexPath(const Table& table, const Path& source,
                                                const Path& proposed) override {
    return event([&]() -> Path {
      ::NSIndexPath* target = [list() tableView:object(table)
          targetIndexPathForMoveFromRowAtIndexPath:pathTo(source)
                               toProposedIndexPath:pathTo(proposed)];
      return {std::size_t(target.section), std::size_t(target.row)};
    });
  }

 private:
  id<UITableViewDataSource, UITableViewDelegate> list() const {
    return (id<UITableViewDataSource, UITableViewDelegate>)behind();
  }
};

std::unordered_map<id, std::unique_ptr<Bridge>> bridges;

/// For the stand-in, which asks the bundle for a controller by its class's name.
template <std::size_t Index>
std::shared_ptr<platform::UIViewController> make();

constexpr platform::ControllerClass classes[] = {
    {"QMRoot", &make<0>},           {"QMColorVC", &make<1>},     {"QMClockVC", &make<2>},
    {"QMQuickActionsVC", &make<3>}, {"QMLottiesList", &make<4>},
};

template <std::size_t Index>
std::shared_ptr<platform::UIViewController> make() {
  UIViewController* controller = [objc_lookUpClass(classes[Index].name) alloc];
  auto made = shared(controller);
  [controller release];
  return made;
}

}  // namespace

Bridge& bridgeOf(UIViewController* controller) {
  std::unique_ptr<Bridge>& bridge = bridges[controller];
  if (!bridge) {
    if ([controller isKindOfClass:[PSListController class]]) {
      bridge = std::make_unique<PageBridge>(controller);
    } else {
      bridge = std::make_unique<TableBridge>(controller);
    }
  }
  return *bridge;
}

ListBridge& listBridgeOf(UIViewController* controller) {
  return dynamic_cast<ListBridge&>(bridgeOf(controller));
}

void forgetBridge(UIViewController* controller) { const auto gone = bridges.extract(controller); }

UIViewController* behind(const platform::UIViewController& controller) {
  if (const auto* page = dynamic_cast<const PageBridge*>(&controller)) return page->behind();
  return dynamic_cast<const TableBridge&>(controller).behind();
}

std::shared_ptr<platform::UIViewController> shared(UIViewController* controller) {
  [controller retain];
  return {&bridgeOf(controller).controller(), [controller](auto*) { [controller release]; }};
}

}  // namespace doubles

std::span<const platform::ControllerClass> platform::bundleClasses() { return doubles::classes; }
