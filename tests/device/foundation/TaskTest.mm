#include <gtest/gtest.h>
#include <string>

#include "device/Native.h"
#include "platform/Foundation/NSTask.h"

namespace {

using platform::NSArray;
using platform::NSPipe;
using platform::NSString;
using platform::NSTask;

/// What the shell of that name, in this program's layout, writes when it is asked to say "heard".
std::string heardFrom(const char* shell) {
  @autoreleasepool {
    NSTask task = NSTask::init();
    task.setLaunchPath(shell);
    task.setArguments(NSArray::arrayWithObjects({NSString("-c"), NSString("echo heard")}));
    const NSPipe pipe = NSPipe::pipe();
    task.setStandardOutput(pipe);
    task.launch();
    ::NSData* heard = device::native(pipe.fileHandleForReading().readDataToEndOfFile());
    return {static_cast<const char*>([heard bytes]), [heard length]};
  }
}

// The layout of this program moves what is not of the system; "/var/jb" need not exist here.
TEST(Task, ThatCannotBeStartedGivesNothingAndKeepsNobodyWaiting) {
  EXPECT_EQ(heardFrom("/no/such/shell"), "");
}

TEST(Task, OutputIsNoneUntilItIsSet) {
  @autoreleasepool {
    NSTask task = NSTask::init();
    EXPECT_FALSE(task.standardOutput());
    task.setStandardOutput(NSPipe::pipe());
    EXPECT_TRUE(task.standardOutput());
  }
}

}  // namespace
