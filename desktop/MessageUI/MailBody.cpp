#include "desktop/MessageUI/MailBody.h"

#include <array>
#include <cerrno>
#include <cinttypes>
#include <cstdio>
#include <ctime>
#include <sys/random.h>
#include <system_error>

#include "desktop/Foundation/ErrorBody.h"
#include "desktop/MessageUI/Mailbox.h"
#include "desktop/Phone.h"

namespace desktop {

using platform::MFMailComposeResult;

namespace {

constexpr const char* outbox = "/var/mobile/Library/Mail/Outbox/";
constexpr const char* drafts = "/var/mobile/Library/Mail/Drafts/";

/// The time in UTC, in ISO 8601's basic form.
std::string timestamp() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  gmtime_r(&now, &parts);
  std::array<char, 32> text;
  return {text.data(), std::strftime(text.data(), text.size(), "%Y%m%dT%H%M%SZ", &parts)};
}

/// Sorts by time, and is nobody else's: to look first whether it is free would leave another
/// program time to take it. Throws `std::system_error`.
std::string freePathIn(const std::string& folder) {
  std::uint64_t random = 0;
  if (getrandom(&random, sizeof random, 0) != sizeof random) {
    throw std::system_error(errno, std::generic_category(), folder);
  }
  std::array<char, 2 * sizeof random + 1> digits;
  std::snprintf(digits.data(), digits.size(), "%016" PRIx64, random);
  return folder + timestamp() + '-' + digits.data() + ".eml";
}

/// Throws `std::system_error`.
void put(const std::string& folder, std::string_view text) {
  const PhoneFolder& phone = Phone::current().folder;
  phone.makeFolders(folder.substr(0, folder.size() - 1));
  phone.replace(freePathIn(folder), text);
}

}  // namespace

void MailBody::change(std::string& text, std::string edited) {
  isChanged_ = isChanged_ || text != edited;
  text = std::move(edited);
}

bool MailBody::canSend() const { return mailboxesIn(message.recipients).has_value(); }

void MailBody::send() {
  if (canSend()) store(outbox, MFMailComposeResult::Sent);
}

void MailBody::saveDraft() { store(drafts, MFMailComposeResult::Saved); }

void MailBody::cancel() { finish(MFMailComposeResult::Cancelled, {}); }

void MailBody::askToCancel() {
  if (isChanged_) {
    isAsking_ = true;
  } else {
    cancel();
  }
}

void MailBody::store(const std::string& folder, MFMailComposeResult result) {
  if (isFinished_) return;
  Phone& phone = Phone::current();
  std::string text;
  try {
    text = format(message);
    put(folder, text);
  } catch (const std::system_error& failure) {
    const std::string reason = failure.code().message();
    phone.report("the mail was not put into " + folder + ": " + reason);
    finish(MFMailComposeResult::Failed,
           make<platform::NSError, ErrorBody>(failure.code().value(), reason));
    return;
  }
  finish(result, {});  // This object may be gone after it.
  if (result == MFMailComposeResult::Sent && phone.mailSent) phone.mailSent(text);
}

void MailBody::finish(MFMailComposeResult result, const platform::NSError& error) {
  if (isFinished_) return;
  isFinished_ = true;
  if (!delegate) return;
  retain();  // The delegate may let go of the screen.
  const auto self =
      platform::Backend::adopt<platform::MFMailComposeViewController>(static_cast<Body*>(this));
  delegate->didFinishWithResult(self, result, error);
}

}  // namespace desktop
