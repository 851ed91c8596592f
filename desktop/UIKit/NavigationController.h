#pragma once

#include <memory>
#include <string>
#include <vector>

#include "desktop/Preferences/ListView.h"
#include "platform/UIKit/UIViewController.h"

namespace desktop {

/// The stack of pages that the Settings app shows; the last one is on top. It owns them.
class NavigationController {
 public:
  struct Page {
    /// Never used twice, so that what belonged to a page that is gone cannot be mistaken.
    unsigned number;
    std::unique_ptr<platform::UIViewController> controller;
    std::vector<Section> sections;
  };

  const std::vector<Page>& pages() const { return pages_; }

  /// The page on top. There must be one.
  Page& top() { return pages_.back(); }

  /// Puts a page on top and draws it.
  void push(std::unique_ptr<platform::UIViewController> controller);

  /// Drops the page on top and draws the one below; the first page stays.
  void pop();

 private:
  std::vector<Page> pages_;
  unsigned lastNumber_ = 0;
};

}  // namespace desktop
