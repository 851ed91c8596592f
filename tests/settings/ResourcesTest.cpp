#include <boost/beast/http/verb.hpp>

#include "desktop/Foundation/Values.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "settings/Site.h"
#include "tests/settings/PhoneScreenTest.h"
#include "tests/settings/Requests.h"

namespace settings_tests {
namespace {

using boost::beast::http::status;

/// The files that the screen offers, as a browser gets them.
class ResourcesTest : public PhoneScreenTest {
 protected:
  /// The answer to an address as the screen gives it, relative to the page's.
  settings::Response ask(const std::string& asked) {
    return settings::answer(
        access, get(access.home() + asked, {{"Host", host}, {"Cookie", cookiePair(access)}}),
        [this](std::string_view address) { return screen.file(address, pictures); });
  }

  /// Shows a mail with one attachment of that type; the address of the attachment.
  std::string attach(const char* type, std::string_view bytes) {
    pages().dismiss();
    auto mail = platform::MFMailComposeViewController::init();
    mail.addAttachmentData(desktop::box(plist::Value::data(bytes)).as<platform::NSData>(), type,
                           "file");
    pages().present(mail);
    return overlay()["attachments"][0]["address"];
  }

  const settings::Access access{port};
};

std::string type(const settings::Response& response) {
  return std::string(response[boost::beast::http::field::content_type]);
}
std::string disposition(const settings::Response& response) {
  return std::string(response[boost::beast::http::field::content_disposition]);
}

TEST_F(ResourcesTest, APictureOnTheScreenIsServed) {
  const std::string address = node(tree().at("page1")["header"])["source"];
  const auto response = ask(address);
  EXPECT_EQ(response.result(), status::ok);
  EXPECT_EQ(type(response), "image/png");
  EXPECT_EQ(disposition(response), "");
  EXPECT_EQ(response.body(), pictures.file(address)->bytes);
  EXPECT_EQ(response["X-Content-Type-Options"], "nosniff");
}

TEST_F(ResourcesTest, TheScreenIsServedAsItsFirstMessage) {
  const auto response = ask("screen.json");
  EXPECT_EQ(response.result(), status::ok);
  EXPECT_EQ(nlohmann::json::parse(response.body()),
            settings::screenMessage(screen.tree({}, pictures)));
}

TEST_F(ResourcesTest, TheBundlesPicturesAreServed) {
  const auto response = ask("bundle/Designer@3x.png");
  EXPECT_EQ(response.result(), status::ok);
  EXPECT_EQ(type(response), "image/png");
  EXPECT_EQ(response.body(), phone.folder.read(phone.bundle + "/Designer@3x.png"));
}

TEST_F(ResourcesTest, NothingElseOfTheBundleIsServed) {
  for (const char* name : {".hidden.png", "..png", ".png"}) {
    phone.folder.replace(phone.bundle + "/" + name, "hidden");
  }
  phone.folder.replace(phone.bundle + "/Picture.PNG", "upper case");
  phone.folder.makeFolders(phone.bundle + "/Folder.png");
  phone.folder.replace(phone.bundle + "/Folder.png/Inner.png", "inner");
  phone.folder.replace("/Library/PreferenceBundles/Outer.png", "outer");
  for (const char* name : {"",
                           ".",
                           "..",
                           ".png",
                           "..png",
                           "Root.plist",
                           "Info.plist",
                           "Missing.png",
                           ".hidden.png",
                           "Picture.PNG",
                           "Folder.png",
                           "Folder.png/",
                           "Folder.png/Inner.png",
                           "../Outer.png",
                           "./Icon@2x.png",
                           "/Icon@2x.png",
                           "../Quillmere.bundle/Icon@2x.png",
                           "Icon%402x.png",
                           "Icon@2x.png/",
                           "Icon@2x.png?",
                           "..%2fOuter.png",
                           "Root.plist?.png"}) {
    EXPECT_EQ(ask(std::string("bundle/") + name).result(), status::not_found) << name;
  }
  EXPECT_EQ(ask("Bundle/Icon@2x.png").result(), status::not_found);
  EXPECT_EQ(ask("bundle").result(), status::not_found);
}

TEST_F(ResourcesTest, AnAttachmentOfPlainTextIsShown) {
  const auto response = ask(attach("text/plain", "<b>text</b>"));
  EXPECT_EQ(response.result(), status::ok);
  EXPECT_EQ(type(response), "text/plain; charset=utf-8");
  EXPECT_EQ(disposition(response), "");
  EXPECT_EQ(response.body(), "<b>text</b>");
}

TEST_F(ResourcesTest, AnAttachmentOfAnyOtherTypeIsSaved) {
  for (const char* odd : {"text/html", "image/svg+xml", "text/plain2", "TEXT/PLAIN", "",
                          "text/plain\r\nX-Odd: 1", "application/pdf"}) {
    const auto response = ask(attach(odd, "<b>text</b>"));
    EXPECT_EQ(response.result(), status::ok) << odd;
    EXPECT_EQ(type(response), "application/octet-stream") << odd;
    EXPECT_EQ(disposition(response), "attachment") << odd;
    EXPECT_EQ(response.count("X-Odd"), 0U);
  }
}

TEST_F(ResourcesTest, AnAttachmentGoesWithItsMail) {
  const std::string address = attach("text/plain", "text");
  EXPECT_EQ(ask(address + "0").result(), status::not_found);
  attach("text/plain", "other");
  EXPECT_EQ(ask(address).result(), status::not_found);
  const std::string last = overlay()["attachments"][0]["address"];
  pages().dismiss();
  EXPECT_EQ(ask(last).result(), status::not_found);
}

TEST_F(ResourcesTest, WhileThePhoneRestartsThereAreNoAttachments) {
  const std::string address = attach("text/plain", "text");
  phone.springBoard.respringAndReturnTo("prefs:root=Quillmere");
  EXPECT_EQ(ask(address).result(), status::not_found);
}

TEST_F(ResourcesTest, StrangersGetNone) {
  const auto refused =
      settings::answer(access, get(access.home() + "bundle/Icon@2x.png", {{"Host", host}}),
                       [this](std::string_view address) { return screen.file(address, pictures); });
  EXPECT_EQ(refused.result(), status::forbidden);
}

}  // namespace
}  // namespace settings_tests
