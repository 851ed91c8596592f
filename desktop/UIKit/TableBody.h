#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "desktop/UIKit/LabelBody.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITableViewDataSource.h"
#include "platform/UIKit/UITableViewDelegate.h"
#include "platform/UIKit/UIViewController.h"

namespace desktop {

class TableCellBody : public ViewBody {
 public:
  explicit TableCellBody(std::string identifier);

  std::string_view className() const override { return "UITableViewCell"; }

  const std::string reuseIdentifier;
  const platform::UILabel textLabel;
};

/// A table: what it shows, and what the user's hands do to it.
class TableBody : public ViewBody {
 public:
  struct Section {
    std::string title;
    std::size_t rows;
  };

  std::string_view className() const override { return "UITableView"; }

  /// The sections, asked for once until the next `reload`; none without a data source.
  const std::vector<Section>& sections();
  bool contains(const platform::NSIndexPath& path);

  /// The row's cell, asked of the data source when it comes into view.
  platform::UITableViewCell cell(const platform::NSIndexPath& path);
  platform::UITableViewCell dequeue(const std::string& identifier);
  void reload();
  /// How often it was reloaded: positions in the table mean the same as long as that is the same.
  unsigned reloads() const { return reloads_; }

  /// @name The user's hands. The row must be there.
  /// @{
  /// The control of a row that is edited: inserting happens at once, deleting awaits `confirm`.
  void tapControl(const platform::NSIndexPath& path);
  /// The row whose deletion awaits its confirmation.
  const std::optional<platform::NSIndexPath>& confirming() const { return confirming_; }
  void confirm();
  void cancelConfirmation() { confirming_.reset(); }
  /// Drags a row and lets it go where `proposed` stands.
  void drag(const platform::NSIndexPath& source, const platform::NSIndexPath& proposed);
  /// Moves the content; `y` in points. The controller is told if it listens.
  void scroll(double y);
  /// @}

  platform::UITableViewCellEditingStyle editingStyle(const platform::NSIndexPath& path);
  bool isMovable(const platform::NSIndexPath& path);

  platform::UITableViewDataSource* dataSource = nullptr;
  platform::UITableViewDelegate* delegate = nullptr;
  /// Who listens to scrolling; null for nobody.
  platform::UIViewController* scrollDelegate = nullptr;
  bool isEditing = false;
  platform::UIColor separator;
  platform::UIView header;
  platform::CGPoint contentOffset;

 private:
  using Position = std::pair<std::size_t, std::size_t>;

  platform::UITableView handle();
  void commit(platform::UITableViewCellEditingStyle style, const platform::NSIndexPath& path);
  void retireCells();

  std::optional<std::vector<Section>> sections_;
  std::map<Position, platform::UITableViewCell> cells_;
  std::map<std::string, std::vector<platform::UITableViewCell>> retired_;
  std::optional<platform::NSIndexPath> confirming_;
  unsigned reloads_ = 0;
};

/// Whether the controller listens to its table's scrolling.
bool listensToScrolling(const platform::UIViewController& controller);

}  // namespace desktop
