#include "platform/UIKit/UITableView.h"

#include "desktop/CoreGraphics/Geometry.h"
#include "desktop/Message.h"
#include "desktop/UIKit/ControllerState.h"
#include "desktop/UIKit/TableBody.h"

namespace platform {

using desktop::send;
using desktop::TableBody;
using desktop::TableCellBody;

namespace {

/// The controller that is a table's delegate or data source.
template <class Protocol>
UIViewController* controllerOf(Protocol& adopter) {
  return dynamic_cast<UIViewController*>(&adopter);
}

template <class Protocol>
std::string nameOf(Protocol& adopter) {
  const UIViewController* controller = controllerOf(adopter);
  return controller ? desktop::stateOf(*controller).className : "delegate";
}

}  // namespace

CGPoint UIScrollView::contentOffset() const {
  return send<TableBody>(*this, "contentOffset", {},
                         [](TableBody& self) { return self.contentOffset; });
}

UITableView UITableView::initWithFrame(const CGRect& frame, UITableViewStyle style) {
  return desktop::sendClass("UITableView", "initWithFrame:style:",
                            {std::string_view(desktop::text(frame)), static_cast<double>(style)},
                            [&] {
                              auto table = desktop::make<UITableView, TableBody>();
                              desktop::viewOf(table)->frame = frame;
                              return table;
                            });
}

void UITableView::setDelegate(UITableViewDelegate& delegate) {
  send<TableBody>(*this, "setDelegate:", {std::string_view(nameOf(delegate))},
                  [&](TableBody& self) {
                    self.delegate = &delegate;
                    self.scrollDelegate = controllerOf(delegate);
                  });
}

void UITableView::setDataSource(UITableViewDataSource& dataSource) {
  send<TableBody>(*this, "setDataSource:", {std::string_view(nameOf(dataSource))},
                  [&](TableBody& self) { self.dataSource = &dataSource; });
}

void UITableView::setSeparatorColor(const UIColor& color) {
  send<TableBody>(*this, "setSeparatorColor:", {color},
                  [&](TableBody& self) { self.separator = color; });
}

void UITableView::setAllowsSelection(bool allows) {
  // Rows that are being edited cannot be selected here in any case.
  send<TableBody>(*this, "setAllowsSelection:", {allows}, [](TableBody&) {});
}

void UITableView::setTableHeaderView(const UIView& view) {
  send<TableBody>(*this, "setTableHeaderView:", {view},
                  [&](TableBody& self) { self.header = view; });
}

bool UITableView::isEditing() const {
  return send<TableBody>(*this, "isEditing", {}, [](TableBody& self) { return self.isEditing; });
}

void UITableView::setEditing(bool editing, Animated animated) {
  send<TableBody>(*this, "setEditing:animated:", {editing, animated == Animated::Yes},
                  [&](TableBody& self) { self.isEditing = editing; });
}

void UITableView::reloadData() {
  send<TableBody>(*this, "reloadData", {}, [](TableBody& self) { self.reload(); });
}

UITableViewCell UITableView::dequeueReusableCellWithIdentifier(const NSString& identifier) {
  return send<TableBody>(*this, "dequeueReusableCellWithIdentifier:", {identifier},
                         [&](TableBody& self) { return self.dequeue(identifier.UTF8String()); });
}

UITableViewCell UITableViewCell::initWithStyle(UITableViewCellStyle style,
                                               const NSString& reuseIdentifier) {
  return desktop::sendClass(
      "UITableViewCell",
      "initWithStyle:reuseIdentifier:", {static_cast<double>(style), reuseIdentifier},
      [&] { return desktop::make<UITableViewCell, TableCellBody>(reuseIdentifier.UTF8String()); });
}

UILabel UITableViewCell::textLabel() const {
  return send<TableCellBody>(*this, "textLabel", {},
                             [](TableCellBody& self) { return self.textLabel; });
}

}  // namespace platform
