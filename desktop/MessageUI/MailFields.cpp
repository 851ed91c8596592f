#include "desktop/MessageUI/MailFields.h"

#include <array>
#include <cstdint>
#include <stdexcept>
#include <utility>

#include "plist/Document.h"

namespace desktop {

namespace {

template <class Owner>
using TextField = std::pair<const char*, std::string Owner::*>;

constexpr std::array<TextField<MimeMessage>, 3> messageTexts{{
    {"recipients", &MimeMessage::recipients},
    {"subject", &MimeMessage::subject},
    {"body", &MimeMessage::body},
}};

constexpr std::array<TextField<Attachment>, 3> attachmentTexts{{
    {"fileName", &Attachment::fileName},
    {"mimeType", &Attachment::mimeType},
    {"bytes", &Attachment::bytes},
}};

constexpr const char* isHTML = "isHTML";
constexpr const char* attachments = "attachments";

/// What can be sent has no other bounds than memory.
constexpr plist::Limits unbounded{
    .bytes = plist::Limits::kMostBytes, .nodes = UINT32_MAX, .text = UINT64_MAX};

plist::Dictionary textsOf(const auto& owner, const auto& fields) {
  plist::Dictionary texts;
  for (const auto& [key, member] : fields) texts.set(key, plist::Value::data(owner.*member));
  return texts;
}

void require(bool fact) {
  if (!fact) throw std::runtime_error("this is no mail");
}

const plist::Value& valueOf(const plist::Dictionary& fields, const char* key) {
  const plist::Value* value = fields.find(key);
  require(value != nullptr);
  return *value;
}

void readTexts(auto& owner, const auto& fields, const plist::Dictionary& texts) {
  for (const auto& [key, member] : fields) {
    const auto text = valueOf(texts, key).data();
    require(text.has_value());
    owner.*member = *text;
  }
}

}  // namespace

std::string packed(const MimeMessage& message) {
  plist::Dictionary fields = textsOf(message, messageTexts);
  fields.set(isHTML, plist::Value(message.isHTML));
  plist::Array files;
  for (const Attachment& each : message.attachments) {
    files.append(plist::Value(textsOf(each, attachmentTexts)));
  }
  fields.set(attachments, plist::Value(std::move(files)));
  return plist::writeBinary(plist::Value(std::move(fields)));
}

MimeMessage unpacked(std::string bytes) {
  const plist::Value root = plist::read(std::move(bytes), unbounded).root;
  require(root.dictionary() != nullptr);
  const plist::Dictionary& fields = *root.dictionary();
  MimeMessage message;
  readTexts(message, messageTexts, fields);
  message.isHTML = valueOf(fields, isHTML).boolean().value_or(false);
  const plist::Array* files = valueOf(fields, attachments).array();
  require(files != nullptr);
  for (const plist::Value& each : *files) {
    require(each.dictionary() != nullptr);
    readTexts(message.attachments.emplace_back(), attachmentTexts, *each.dictionary());
  }
  return message;
}

}  // namespace desktop
