#include "settings/Session.h"

#include "settings/PhoneSetup.h"

namespace settings {

namespace {

std::filesystem::path phoneFolder(const Options& options) {
  if (!options.root.empty()) {
    requireFolder(options.root);
    return options.root;
  }
  const std::filesystem::path folder = defaultPhoneFolder();
  std::filesystem::create_directories(folder.parent_path());
  requireFolder(folder);
  return folder;
}

/// What the phone's own files say of it, unless the command line says otherwise.
desktop::Identity identityOf(const desktop::PhoneFolder& folder, const Options& options) {
  desktop::Identity identity = desktop::readIdentity(folder);
  if (!options.productType.empty()) identity.productType = options.productType;
  if (!options.iosVersion.empty()) {
    identity.productVersion = options.iosVersion;
    identity.buildVersion.reset();  // The files' build is of another version.
  }
  if (!options.iosBuild.empty()) identity.buildVersion = options.iosBuild;
  return identity;
}

}  // namespace

Session::Session(const Options& options, boost::asio::io_context& loop)
    : phone(phoneFolder(options)), commands_(loop) {
  setUpPhone(phone.folder);
  phone.identity = identityOf(phone.folder, options);
  phone.screenScale = options.screenScale;
  phone.preferences.start();
  runCommands(options);
  phone.springBoard.open("prefs:root=Quillmere");
}

void Session::runCommands(const Options& options) {
  phone.springBoard.onRespring = [this, command = options.respringCommand] {
    commands_.run(command, {});
  };
  phone.notifications.observe([this, command = options.notifyCommand](const std::string& name) {
    commands_.run(command, {{name}, {}});
  });
  phone.mailSent = [this, command = options.mailCommand](const std::string& message) {
    commands_.run(command, {{}, message});
  };
}

}  // namespace settings
