#include "settings/Overlay.h"

#include "desktop/Foundation/Values.h"
#include "desktop/OrvalenPrefs/WelcomeBody.h"
#include "desktop/UIKit/AlertBody.h"
#include "desktop/UIKit/ColorBody.h"
#include "settings/MailSheet.h"

namespace settings {

using desktop::AlertActionBody;
using desktop::AlertBody;
using desktop::NavigationController;
using desktop::textOf;
using desktop::WelcomeBody;
using nlohmann::json;

namespace {

constexpr std::string_view continuing = ".continue";
constexpr std::string_view dismissing = ".dismiss";

std::string overlayId(const NavigationController& navigation) {
  return "overlay" + std::to_string(navigation.presentation());
}

std::string actionId(const std::string& id, std::size_t action) {
  return id + ".action" + std::to_string(action);
}

constexpr const char* nameOf(platform::UIAlertActionStyle style) {
  switch (style) {
    case platform::UIAlertActionStyle::Cancel:
      return "cancel";
    case platform::UIAlertActionStyle::Destructive:
      return "destructive";
    default:
      return "default";
  }
}

json alertNode(const AlertBody& alert, const std::string& id) {
  json actions = json::array();
  for (const auto& object : alert.actions) {
    const auto& action = *desktop::bodyAs<AlertActionBody>(object);
    actions.push_back({{"id", actionId(id, actions.size())},
                       {"title", textOf(action.title)},
                       {"style", nameOf(action.style)}});
  }
  return {{"kind", "alert"},
          {"title", textOf(alert.title)},
          {"message", textOf(alert.message)},
          {"actions", std::move(actions)}};
}

json welcomeNode(const WelcomeBody& welcome, const std::string& id) {
  json items = json::array();
  for (const WelcomeBody::Item& item : welcome.items) {
    items.push_back({{"title", textOf(item.title)}, {"description", textOf(item.description)}});
  }
  return {
      {"kind", "welcome"},
      {"title", textOf(welcome.title)},
      {"subtitle", textOf(welcome.subtitle)},
      {"items", std::move(items)},
      {"button", {{"id", id + std::string(continuing)}, {"title", textOf(welcome.buttonTitle)}}},
      {"dismiss", id + std::string(dismissing)},
      {"caption", textOf(welcome.buttonCaption)},
      {"tint", desktop::webColor(welcome.tint)}};
}

json restartNode(desktop::SpringBoard::Phase phase) {
  const bool isLocked = phase == desktop::SpringBoard::Phase::Locked;
  return {{"kind", "restart"}, {"phase", isLocked ? "locked" : "dark"}};
}

bool tapAlert(NavigationController& navigation, const AlertBody& alert, std::string_view id) {
  for (std::size_t i = 0; i < alert.actions.size(); ++i) {
    if (actionId(overlayId(navigation), i) != id) continue;
    answerAlert(navigation, alert.actions[i]);
    return true;
  }
  return false;
}

bool tapWelcome(NavigationController& navigation, const WelcomeBody& welcome, std::string_view id) {
  const std::string own = overlayId(navigation);
  if (id != own + std::string(continuing) && id != own + std::string(dismissing)) return false;
  welcome.rememberSeen();
  navigation.dismiss();
  return true;
}

}  // namespace

json addOverlay(Tree& tree, desktop::SpringBoard& board) {
  NavigationController* navigation = board.navigation();
  if (!navigation) {
    tree["restart"] = restartNode(board.phase());
    return "restart";
  }
  const platform::Object& shown = navigation->presented();
  const std::string id = overlayId(*navigation);
  if (const auto* alert = desktop::bodyAs<AlertBody>(shown)) {
    tree[id] = alertNode(*alert, id);
  } else if (const auto* welcome = desktop::bodyAs<WelcomeBody>(shown)) {
    tree[id] = welcomeNode(*welcome, id);
  } else if (const auto* mail = desktop::bodyAs<desktop::MailBody>(shown)) {
    tree[id] = mailNode(*mail, id);
  } else {
    return nullptr;
  }
  return id;
}

void answerAlert(NavigationController& navigation, const platform::UIAlertAction& action) {
  // The alert goes first, and its answer may bring up another.
  const platform::UIAlertAction chosen = action;
  navigation.dismiss();
  if (const auto& handler = desktop::bodyAs<AlertActionBody>(chosen)->handler) handler();
}

bool tapOverlay(NavigationController& navigation, std::string_view id) {
  const platform::Object shown = navigation.presented();
  if (const auto* alert = desktop::bodyAs<AlertBody>(shown))
    return tapAlert(navigation, *alert, id);
  if (const auto* welcome = desktop::bodyAs<WelcomeBody>(shown)) {
    return tapWelcome(navigation, *welcome, id);
  }
  auto* mail = desktop::bodyAs<desktop::MailBody>(shown);
  return mail && tapMail(*mail, overlayId(navigation), id);
}

bool typeIntoOverlay(NavigationController& navigation, std::string_view id,
                     const std::string& text) {
  auto* mail = desktop::bodyAs<desktop::MailBody>(navigation.presented());
  return mail && typeIntoMail(*mail, overlayId(navigation), id, text);
}

std::optional<Resource> attachment(NavigationController& navigation, std::string_view address) {
  const auto* mail = desktop::bodyAs<desktop::MailBody>(navigation.presented());
  return mail ? attachmentAt(*mail, overlayId(navigation), address) : std::nullopt;
}

}  // namespace settings
