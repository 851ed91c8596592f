#include "settings/Session.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

#include "settings/PhoneSetup.h"

namespace settings {

namespace {

bool onlyReads(const Options& options) {
  return options.subCommand && options.subCommand->effect == cli::SubCommand::Effect::Reads;
}

std::filesystem::path rootOf(const Options& options) {
  return options.root.empty() ? defaultPhoneFolder() : options.root;
}

void requirePhone(bool isThere, const Options& options) {
  if (!isThere) throw std::runtime_error("there is no phone in " + rootOf(options).string());
}

/// Where the phone is to be. Whoever only looks makes no folder.
std::filesystem::path phoneFolder(const Options& options) {
  const std::filesystem::path folder = rootOf(options);
  if (onlyReads(options)) {
    requirePhone(std::filesystem::is_directory(folder), options);
    return folder;
  }
  if (options.root.empty()) std::filesystem::create_directories(folder.parent_path());
  requireFolder(folder);
  return folder;
}

/// What the phone's own files say of it, unless the command line says otherwise.
desktop::Identity identityOf(const desktop::Phone& phone, const Options& options) {
  desktop::Identity identity = phone.identity;
  // A new phone had no files yet when it was switched on.
  if (!identity.productVersion) identity = desktop::readIdentity(phone.folder);
  if (!options.productType.empty()) identity.productType = options.productType;
  if (!options.iosVersion.empty()) {
    identity.productVersion = options.iosVersion;
    identity.buildVersion.reset();  // The files' build is of another version.
  }
  if (!options.iosBuild.empty()) identity.buildVersion = options.iosBuild;
  return identity;
}

/// Whether the file system knows no locks (flock(2)).
bool isUnlockable(const std::error_code& error) {
  constexpr std::errc reasons[] = {std::errc::no_lock_available, std::errc::not_supported,
                                   std::errc::function_not_supported, std::errc::invalid_argument};
  return std::ranges::any_of(reasons, [&](std::errc reason) { return error == reason; });
}

}  // namespace

Session::Session(const Options& options, boost::asio::io_context& loop)
    : phone(phoneFolder(options)), commands_(loop) {
  const bool reads = onlyReads(options);
  if (reads) {
    requirePhone(holdsPhone(phone.folder), options);
    requireFolder(rootOf(options));
  }
  std::optional<desktop::Descriptor> held;
  try {
    held.emplace(alone(reads ? patience.zero() : patience));
    if (!reads) sweepPhone(phone.folder);
    setUpPhone(phone.folder);
    phone.preferences.settleAll();
  } catch (const Busy&) {
    if (!reads) throw;
  }
  phone.preferences.merges = !reads;
  phone.identity = identityOf(phone, options);
  phone.screenScale = options.screenScale;
  runCommands(options);
  phone.springBoard.open("prefs:root=Quillmere");
}

desktop::Descriptor Session::alone(std::chrono::milliseconds wait) const {
  try {
    return phone.folder.hold(wait);
  } catch (const std::system_error& failure) {
    if (failure.code() == std::errc::operation_would_block) {
      throw Busy("another program is busy with this phone's folder");
    }
    if (!isUnlockable(failure.code())) {
      throw Busy("the phone's folder cannot be held: " + failure.code().message());
    }
    // Where folders cannot be locked at all, changes are made all the same.
    phone.report(std::string("other programs are not kept from the phone's folder: ") +
                 failure.what());
    return desktop::Descriptor(-1);
  }
}

void Session::runQueue() {
  try {
    const desktop::Descriptor held = alone();
    isWaiting_ = false;
    phone.mainQueue.run();
  } catch (const Busy& reason) {
    if (std::exchange(isWaiting_, true)) return;
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
