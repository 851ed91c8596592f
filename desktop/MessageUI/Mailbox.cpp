#include "desktop/MessageUI/Mailbox.h"

#include <algorithm>

namespace desktop {

namespace {

constexpr std::string_view spaces = " \t\r\n";
constexpr std::string_view alphanumerics =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
/// What an atom may hold besides those (RFC 5322, 3.2.3).
constexpr std::string_view atomMarks = "!#$%&'*+-/=?^_`{|}~";
/// What the name before an address holds only in quotes (RFC 5322, 3.2.3).
constexpr std::string_view specials = "()<>[]:;@\\,\"";

/// The limits of RFC 5321, 4.5.3.1, in bytes.
constexpr std::size_t longestLocalPart = 64;
constexpr std::size_t longestDomain = 255;

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(spaces), text.size()));
  return text.substr(0, text.find_last_not_of(spaces) + 1);
}

/// Words of `letters` with single dots between them.
bool isDotted(std::string_view text, std::string_view marks) {
  if (text.empty() || text.starts_with('.') || text.ends_with('.')) return false;
  if (text.find("..") != std::string_view::npos) return false;
  return std::ranges::all_of(text, [&](char letter) {
    return letter == '.' || alphanumerics.find(letter) != std::string_view::npos ||
           marks.find(letter) != std::string_view::npos;
  });
}

bool isAddress(std::string_view text) {
  const std::size_t at = text.rfind('@');
  if (at == std::string_view::npos || at > longestLocalPart) return false;
  const std::string_view domain = text.substr(at + 1);
  return domain.size() <= longestDomain && isDotted(text.substr(0, at), atomMarks) &&
         isDotted(domain, "-");
}

/// Where the first part of a list ends: at a comma that stands in no quotes.
std::size_t endOfFirst(std::string_view list) {
  bool quoted = false;
  for (std::size_t at = 0; at < list.size(); ++at) {
    if (list[at] == '"') quoted = !quoted;
    if (list[at] == '\\' && quoted) ++at;
    if (!quoted && list[at] == ',') return at;
  }
  return list.size();
}

/// What stands in a pair of quotes that are the text's first and last letter.
std::optional<std::string> unquoted(std::string_view text) {
  std::string name;
  for (std::size_t at = 1; at < text.size(); ++at) {
    if (text[at] == '"') return at + 1 == text.size() ? std::optional(name) : std::nullopt;
    if (text[at] == '\\' && ++at == text.size()) break;
    name += text[at];
  }
  return std::nullopt;
}

std::optional<std::string> nameIn(std::string_view text) {
  if (text.starts_with('"')) return unquoted(text);
  // "Jo D. Doe" is common without the quotes that its dot needs: dots are let through.
  if (text.find_first_of(specials) != std::string_view::npos) return std::nullopt;
  return std::string(text);
}

std::optional<Mailbox> mailboxIn(std::string_view text) {
  std::string_view address = text;
  std::optional<std::string> name = "";
  if (text.ends_with('>')) {
    const std::size_t open = text.rfind('<');
    if (open == std::string_view::npos) return std::nullopt;
    address = text.substr(open + 1, text.size() - open - 2);
    name = nameIn(trimmed(text.substr(0, open)));
  }
  if (!name || !isAddress(address)) return std::nullopt;
  return Mailbox{*name, std::string(address)};
}

}  // namespace

std::optional<std::vector<Mailbox>> mailboxesIn(std::string_view list) {
  std::vector<Mailbox> mailboxes;
  while (!trimmed(list).empty()) {
    const std::size_t end = endOfFirst(list);
    const std::string_view first = trimmed(list.substr(0, end));
    list.remove_prefix(std::min(end + 1, list.size()));
    if (first.empty()) continue;  // A comma too many, as one behind the last address.
    auto mailbox = mailboxIn(first);
    if (!mailbox) return std::nullopt;
    mailboxes.push_back(*std::move(mailbox));
  }
  return mailboxes.empty() ? std::nullopt : std::optional(std::move(mailboxes));
}

}  // namespace desktop
