#include "settings/Session.h"

#include <system_error>

#include "settings/PhoneSetup.h"

namespace settings {

namespace {

/// A change takes milliseconds; a program that is stopped in the middle of one must not stop
/// others.
constexpr std::chrono::milliseconds patience{900};

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
  const desktop::Descriptor held = alone();
  setUpPhone(phone.folder);
  phone.identity = identityOf(phone.folder, options);
  phone.screenScale = options.screenScale;
  phone.preferences.start();
  runCommands(options);
  phone.springBoard.open("prefs:root=Quillmere");
}

desktop::Descriptor Session::alone() const {
  try {
    return phone.folder.hold(patience);
  } catch (const std::system_error& failure) {
    if (failure.code() == std::errc::operation_would_block) throw Busy();
    // Where folders cannot be locked at all, changes are made all the same.
    phone.report(std::string("other programs are not kept from the phone's folder: ") +
                 failure.what());
    return desktop::Descriptor(-1);
  }
}

void Session::runQueue() {
  try {
    const desktop::Descriptor held = alone();
    phone.mainQueue.run();
  } catch (const Busy& reason) {
    phone.report(std::string(reason.what()) + ": what was put off waits for it");
  }
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
