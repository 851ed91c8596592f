#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "settings/Tree.h"
#include "settings/Viewport.h"

namespace settings {

/// What a page shows. Pages that show the same share one.
using Shown = std::shared_ptr<const Tree>;

/// A message as it is sent; several connections may be sending the same.
using Message = std::shared_ptr<const std::string>;

/// The message's text. What of it is no UTF-8 becomes a replacement character.
Message message(const nlohmann::json& message);

/// The screen at one moment. What several pages need of it is made once: its tree for all that have
/// the same in view, and the message for all that showed the same before.
class Moment {
 public:
  explicit Moment(const std::function<Tree(const Viewport&)>& draw) : draw_(draw) {}

  /// What a page with that in view shows now.
  Shown shown(const Viewport& viewport);

  /// The message that brings a page from `before`, null for one that shows nothing yet, to `after`.
  /// Null when it shows that already.
  Message change(const Shown& before, const Shown& after);

 private:
  const std::function<Tree(const Viewport&)>& draw_;
  std::map<Viewport, Shown> shown_;
  std::map<std::pair<Shown, Shown>, Message> changes_;
};

}  // namespace settings
