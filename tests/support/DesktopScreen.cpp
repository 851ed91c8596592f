#include <algorithm>

#include "desktop/MessageUI/MailBody.h"
#include "desktop/OrvalenPrefs/WelcomeBody.h"
#include "desktop/UIKit/AlertBody.h"
#include "desktop/UIKit/ColorBody.h"
#include "desktop/UIKit/ImageViewBody.h"
#include "desktop/UIKit/VisualEffectBody.h"
#include "tests/support/DesktopState.h"

/// What stands on the screen besides rows, and the hands on it.
namespace support {

using desktop::bodyAs;
using desktop::textOf;

namespace {

/// What lies over the pages, as one of its class.
template <class Shown>
Shown* shownAs(desktop::Phone& phone) {
  desktop::NavigationController* pages = phone.springBoard.navigation();
  return pages ? bodyAs<Shown>(pages->presented()) : nullptr;
}

const desktop::ViewBody& subview(const platform::UIView& view, std::size_t index) {
  return *desktop::viewOf(desktop::viewOf(view)->subviews.at(index));
}

}  // namespace

void Driver::flip(bool on, bool inside) { state_->barSwitch().toggle(on, inside); }

bool Driver::switchIsOn() const { return state_->barSwitch().on; }

void Driver::scroll(double y) { bodyAs<desktop::TableBody>(state_->controller().table)->scroll(y); }

std::pair<double, double> Driver::titleAlphas() const {
  const platform::UIView title = state_->item().titleView;
  return {subview(title, 0).alpha, subview(title, 1).alpha};
}

std::string Driver::titleText() const {
  return textOf(dynamic_cast<const desktop::LabelBody&>(subview(state_->item().titleView, 0)).text);
}

std::optional<AlertFacts> Driver::alert() const {
  const auto* alert = shownAs<desktop::AlertBody>(state_->phone);
  if (!alert) return std::nullopt;
  AlertFacts facts{textOf(alert->title), textOf(alert->message), {}};
  for (const platform::UIAlertAction& object : alert->actions) {
    const auto& action = *bodyAs<desktop::AlertActionBody>(object);
    const auto style = static_cast<long>(action.style);
    facts.actions.push_back(textOf(action.title) + " (" + std::to_string(style) + ")");
  }
  return facts;
}

void Driver::answer(const std::string& title) {
  const auto* alert = shownAs<desktop::AlertBody>(state_->phone);
  if (!alert) throw std::runtime_error("there is no alert to answer");
  for (const platform::UIAlertAction& action : alert->actions) {
    const auto& chosen = *bodyAs<desktop::AlertActionBody>(action);
    if (textOf(chosen.title) != title) continue;
    const auto handler = chosen.handler;
    state_->navigation().dismiss();
    if (handler) handler();
    return;
  }
  throw std::runtime_error("the alert has no answer " + title);
}

std::optional<WelcomeFacts> Driver::welcome() const {
  const auto* welcome = shownAs<desktop::WelcomeBody>(state_->phone);
  if (!welcome) return std::nullopt;
  WelcomeFacts facts{textOf(welcome->title),
                     textOf(welcome->subtitle),
                     {},
                     textOf(welcome->buttonTitle),
                     textOf(welcome->buttonCaption),
                     desktop::webColor(welcome->tint)};
  for (const auto& item : welcome->items) {
    facts.items.emplace_back(textOf(item.title), textOf(item.description));
  }
  return facts;
}

void Driver::leaveWelcome() {
  const auto* welcome = shownAs<desktop::WelcomeBody>(state_->phone);
  if (!welcome) throw std::runtime_error("there is no welcome screen to leave");
  welcome->rememberSeen();
  state_->navigation().dismiss();
}

std::optional<MailFacts> Driver::mail() const {
  const auto* mail = shownAs<desktop::MailBody>(state_->phone);
  if (!mail) return std::nullopt;
  const desktop::MimeMessage& message = mail->message;
  MailFacts facts{message.recipients, message.subject, message.body, message.isHTML, {}};
  for (const desktop::Attachment& attachment : message.attachments) {
    facts.attachments.push_back({attachment.fileName, attachment.mimeType, attachment.bytes});
  }
  return facts;
}

void Driver::endMail(MailEnd end) {
  auto* mail = shownAs<desktop::MailBody>(state_->phone);
  if (!mail) throw std::runtime_error("there is no mail to end");
  const platform::Object kept = state_->navigation().presented();
  if (end == MailEnd::Send) mail->send();
  if (end == MailEnd::Save) mail->saveDraft();
  if (end == MailEnd::Cancel) mail->cancel();
}

std::optional<double> Driver::blur() const {
  const platform::UIView blur = state_->viewOnPage<desktop::VisualEffectBody>();
  return blur ? std::optional(desktop::viewOf(blur)->alpha) : std::nullopt;
}

void Driver::pass(double seconds) {
  using Clock = desktop::MainQueue::Clock;
  desktop::MainQueue& queue = state_->phone.mainQueue;
  const Clock::time_point end = state_->time + std::chrono::duration_cast<Clock::duration>(
                                                   std::chrono::duration<double>(seconds));
  // From one piece of work to the next: what it puts off counts from when it was due.
  for (auto due = queue.due(); due && *due <= end; due = queue.due()) {
    state_->time = std::max(state_->time, *due);
    queue.run();
  }
  state_->time = end;
}

bool Driver::isRestarting() const { return !state_->phone.springBoard.navigation(); }

}  // namespace support
