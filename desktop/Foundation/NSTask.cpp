#include "platform/Foundation/NSTask.h"

#include <algorithm>
#include <array>
#include <optional>
#include <system_error>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/PipeBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Message.h"
#include "desktop/Process.h"

namespace platform {

using desktop::Phone;
using desktop::send;

namespace {

class TaskBody : public desktop::Body {
 public:
  std::string_view className() const override { return "NSTask"; }

  std::string program;
  std::vector<std::string> arguments;
  NSPipe output;
  bool isLaunched = false;
  /// None until it is launched, and when that failed.
  std::optional<desktop::Process> process;
};

/// Where phones keep what their package manager knows (dpkg(1), "--admindir").
constexpr std::array<const char*, 4> packageDatabases = {
    "/var/lib/dpkg",
    "/Library/dpkg",
    "/var/jb/var/lib/dpkg",
    "/var/jb/Library/dpkg",
};

/// None when the phone's folder has none.
std::optional<desktop::Descriptor> packageDatabase() {
  const desktop::PhoneFolder& folder = Phone::current().folder;
  const auto* path = std::ranges::find_if(
      packageDatabases, [&](const std::string& each) { return folder.isFile(each + "/status"); });
  if (path == packageDatabases.end()) return std::nullopt;
  return folder.openFolder(*path);
}

std::string wordIn(const Object& argument) {
  const auto text = desktop::textIn(argument);
  if (!text) throw desktop::invalidArgument(desktop::debugDescription(argument) + " is no string");
  return std::string(*text);
}

/// Starts this computer's program at the phone's path. One that asks about packages is told of the
/// phone's, where it has any.
void start(TaskBody& task) {
  desktop::Process::Command command;
  command.program = task.program;
  command.arguments = task.arguments;
  if (const auto* pipe = desktop::bodyAs<desktop::PipeBody>(task.output)) {
    command.output = pipe->writing();
  }
  const auto database = packageDatabase();
  if (database) {
    const std::string number = std::to_string(database->number());
    command.inherited = {database->number()};
    command.environment = {"DPKG_ADMINDIR=/proc/self/fd/" + number};
  }
  task.process.emplace(command);
}

}  // namespace

NSTask NSTask::init() {
  return desktop::sendClass("NSTask", "init", {}, [] { return desktop::make<NSTask, TaskBody>(); });
}

void NSTask::setLaunchPath(const NSString& path) {
  send<TaskBody>(*this, "setLaunchPath:", {path},
                 [&](TaskBody& self) { self.program = path.UTF8String(); });
}

void NSTask::setArguments(const NSArray& arguments) {
  send<TaskBody>(*this, "setArguments:", {arguments}, [&](TaskBody& self) {
    self.arguments.clear();
    std::ranges::transform(desktop::objectsIn(arguments), std::back_inserter(self.arguments),
                           &wordIn);
  });
}

NSPipe NSTask::standardOutput() const {
  return send<TaskBody>(*this, "standardOutput", {}, [](TaskBody& self) { return self.output; });
}

void NSTask::setStandardOutput(const NSPipe& pipe) {
  send<TaskBody>(*this, "setStandardOutput:", {pipe}, [&](TaskBody& self) { self.output = pipe; });
}

void NSTask::launch() {
  send<TaskBody>(*this, "launch", {}, [](TaskBody& self) {
    if (self.isLaunched) throw desktop::invalidArgument("a task is launched once");
    self.isLaunched = true;
    try {
      start(self);
    } catch (const std::system_error& failure) {
      Phone::current().report(self.program + " could not be started: " + failure.code().message());
    }
    if (auto* pipe = desktop::bodyAs<desktop::PipeBody>(self.output)) pipe->leaveWriting();
  });
}

}  // namespace platform
