#pragma once

#include <memory>
#include <string>
#include <vector>

#include "desktop/Body.h"
#include "desktop/Preferences/ListView.h"
#include "platform/UIKit/UIViewController.h"

namespace desktop {

/// The stack of pages that the Settings app shows; the last one is on top. It owns them.
class NavigationController {
 public:
  struct Page {
    /// Never used twice, so that what belonged to a page that is gone cannot be mistaken.
    unsigned number;
    std::shared_ptr<platform::UIViewController> controller;
    std::vector<Section> sections;
  };

  const std::vector<Page>& pages() const { return pages_; }

  /// The page on top. There must be one.
  Page& top() { return pages_.back(); }

  /// Puts a page on top and draws it.
  void push(std::shared_ptr<platform::UIViewController> controller);

  /// Drops the page on top and draws the one below; the first page stays.
  void pop();

  /// Draws the page on top anew, as when it comes to the top.
  void redraw();

  /// What lies over all pages and takes all touches (an alert, a welcome screen, a mail composer);
  /// none when nothing does.
  const platform::Object& presented() const { return presented_; }

  /// Never used twice, so that what belonged to a screen that is gone cannot be mistaken.
  unsigned presentation() const { return presentation_; }

  /// Shows such a screen. As on a phone, one over another is refused, and that reported.
  void present(const platform::Object& screen);
  void dismiss() { presented_ = {}; }

 private:
  std::vector<Page> pages_;
  platform::Object presented_;
  unsigned presentation_ = 0;
};

/// What the bundle holds of a stack.
class NavigationBody : public Body {
 public:
  explicit NavigationBody(NavigationController& controller) : stack(controller) {}
  std::string_view className() const override { return "UINavigationController"; }

  NavigationController& stack;
};

}  // namespace desktop
