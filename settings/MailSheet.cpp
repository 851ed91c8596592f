#include "settings/MailSheet.h"

#include <algorithm>

namespace settings {

using desktop::MailBody;
using nlohmann::json;

namespace {

/// What the composer's buttons do; the last three are offered once `cancel` asks.
struct Button {
  std::string_view ending;
  void (*press)(MailBody&);
};

constexpr Button buttons[] = {
    {".send", [](MailBody& mail) { mail.send(); }},
    {".cancel", [](MailBody& mail) { mail.askToCancel(); }},
    {".delete", [](MailBody& mail) { mail.cancel(); }},
    {".save", [](MailBody& mail) { mail.saveDraft(); }},
    {".keep", [](MailBody& mail) { mail.keepWriting(); }},
};

/// The composer's fields.
struct Field {
  const char* name;
  std::string desktop::MimeMessage::*text;
  void (MailBody::*edit)(std::string);
};

constexpr Field fields[] = {
    {"to", &desktop::MimeMessage::recipients, &MailBody::setTo},
    {"subject", &desktop::MimeMessage::subject, &MailBody::setSubject},
    {"body", &desktop::MimeMessage::body, &MailBody::setBody},
};

std::string fieldId(const std::string& id, const Field& field) { return id + "." + field.name; }

std::string addressOf(const std::string& id, std::size_t attachment) {
  return "attachments/" + id + "." + std::to_string(attachment);
}

json choice(const std::string& id, const char* title, const char* style) {
  return {{"id", id}, {"title", title}, {"style", style}};
}

json attachmentNodes(const MailBody& mail, const std::string& id) {
  json nodes = json::array();
  for (const desktop::Attachment& attachment : mail.message.attachments) {
    nodes.push_back({{"name", attachment.fileName},
                     {"size", attachment.bytes.size()},
                     {"type", attachment.mimeType},
                     {"address", addressOf(id, nodes.size())}});
  }
  return nodes;
}

}  // namespace

json mailNode(const MailBody& mail, const std::string& id) {
  json node = {{"kind", "mail"},
               {"attachments", attachmentNodes(mail, id)},
               {"send", id + ".send"},
               {"cancel", id + ".cancel"},
               {"canSend", mail.canSend()},
               {"choices", nullptr}};
  for (const Field& field : fields) {
    node[field.name] = {{"id", fieldId(id, field)}, {"text", mail.message.*field.text}};
  }
  if (mail.isAsking()) {
    node["choices"] = {choice(id + ".delete", "Delete Draft", "destructive"),
                       choice(id + ".save", "Save Draft", "default"),
                       choice(id + ".keep", "Cancel", "cancel")};
  }
  return node;
}

bool tapMail(MailBody& mail, const std::string& id, std::string_view target) {
  const auto* button = std::ranges::find_if(
      buttons, [&](const Button& each) { return target == id + std::string(each.ending); });
  if (button == std::end(buttons)) return false;
  button->press(mail);
  return true;
}

bool typeIntoMail(MailBody& mail, const std::string& id, std::string_view target,
                  const std::string& text) {
  const auto* field =
      std::ranges::find_if(fields, [&](const Field& each) { return target == fieldId(id, each); });
  if (field == std::end(fields)) return false;
  (mail.*field->edit)(text);
  return true;
}

std::optional<Resource> attachmentAt(const MailBody& mail, const std::string& id,
                                     std::string_view address) {
  const auto& attachments = mail.message.attachments;
  for (std::size_t i = 0; i < attachments.size(); ++i) {
    if (addressOf(id, i) == address) return Resource{attachments[i].mimeType, attachments[i].bytes};
  }
  return std::nullopt;
}

}  // namespace settings
