#include "platform/MessageUI/MFMailComposeViewController.h"

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/ValueBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Message.h"
#include "desktop/MessageUI/MailBody.h"

namespace platform {

using desktop::MailBody;
using desktop::send;

namespace {

constexpr const char* className = "MFMailComposeViewController";

std::string joined(const NSArray& recipients) {
  std::string list;
  for (const Object& recipient : desktop::objectsIn(recipients)) {
    if (!list.empty()) list += ", ";
    list += desktop::textOf(recipient);
  }
  return list;
}

std::string_view bytesOf(const NSData& data) {
  const auto* body = desktop::bodyAs<desktop::ValueBody>(data);
  const auto bytes = body ? body->value.data() : std::nullopt;
  if (!bytes) throw desktop::invalidArgument("an attachment takes no nil data");
  return *bytes;
}

std::string nameIn(const NSString& text) {
  if (!text) throw desktop::invalidArgument("an attachment takes no nil type or name");
  return text.UTF8String();
}

}  // namespace

MFMailComposeViewController MFMailComposeViewController::init() {
  return desktop::sendClass(className, "init", {}, [] {
    return desktop::Phone::current().missingClasses.contains(className)
               ? MFMailComposeViewController()
               : desktop::make<MFMailComposeViewController, MailBody>();
  });
}

void MFMailComposeViewController::setSubject(const NSString& subject) {
  send<MailBody>(*this, "setSubject:", {subject},
                 [&](MailBody& self) { self.message.subject = subject.UTF8String(); });
}

void MFMailComposeViewController::setToRecipients(const NSArray& recipients) {
  send<MailBody>(*this, "setToRecipients:", {recipients},
                 [&](MailBody& self) { self.message.recipients = joined(recipients); });
}

void MFMailComposeViewController::setMessageBody(const NSString& body, IsHTML isHTML) {
  send<MailBody>(*this, "setMessageBody:isHTML:", {body, isHTML == IsHTML::Yes},
                 [&](MailBody& self) {
                   self.message.body = body.UTF8String();
                   self.message.isHTML = isHTML == IsHTML::Yes;
                 });
}

void MFMailComposeViewController::addAttachmentData(const NSData& data, const NSString& mimeType,
                                                    const NSString& fileName) {
  send<MailBody>(*this, "addAttachmentData:mimeType:fileName:", {data, mimeType, fileName},
                 [&](MailBody& self) {
                   self.message.attachments.push_back(
                       {nameIn(fileName), nameIn(mimeType), std::string(bytesOf(data))});
                 });
}

void MFMailComposeViewController::setMailComposeDelegate(
    MFMailComposeViewControllerDelegate& delegate) {
  send<MailBody>(*this, "setMailComposeDelegate:", {"delegate"},
                 [&](MailBody& self) { self.delegate = &delegate; });
}

}  // namespace platform
