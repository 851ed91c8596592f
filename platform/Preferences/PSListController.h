#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UIViewController.h"

namespace platform {

/// A page that shows a list of specifiers.
class PSListController : public UIViewController {
 public:
  /// The page's rows, asked for whenever they are needed.
  virtual NSArray specifiers();

  void viewDidLoad() override;

 protected:
  /// The table that shows the rows.
  UITableView table();

  /// The rows of the list resource `name` of the bundle that the controller's class comes from,
  /// with `target` as each row's target. None when there is no such resource.
  NSArray loadSpecifiersFromPlistName(const NSString& name, PSListController& target);

  /// The list controller's own instance variable for its rows; none at first.
  NSArray _specifiers() const;
  /// Keeps the rows; none forgets them.
  void set_specifiers(const NSArray& specifiers);
};

}  // namespace platform
