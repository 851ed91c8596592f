#pragma once

#include <string>
#include <vector>

namespace desktop {

/// A file that goes with a mail.
struct Attachment {
  std::string fileName;
  /// A media type (RFC 2046), "text/plain" say; what is none goes as "application/octet-stream".
  std::string mimeType;
  std::string bytes;
};

/// A mail as its writer sees it; all texts are UTF-8.
struct MimeMessage {
  /// Mailboxes with commas between them.
  std::string recipients;
  std::string subject;
  std::string body;
  bool isHTML = false;
  std::vector<Attachment> attachments;
};

/// The message as it travels (RFC 5322 and 2045 to 2047), dated now; its lines end in CR LF,
/// the last one too. Nothing that a text holds gets out of its own field. Recipients that are not
/// well-formed, as in a draft, stand in the field X-Unfinished-To instead.
/// Written by a program of its own (desktop/mail); throws `std::system_error` when that fails.
std::string format(const MimeMessage& message);

}  // namespace desktop
