#include <gtest/gtest.h>
#include <string>

#include "device/Native.h"
#include "platform/Foundation/NSTask.h"

namespace {

using platform::NSArray;
using platform::NSPipe;
using platform::NSString;
using platform::NSTask;

/// What that program of the phone writes when it is asked to run a line of a shell's language. The
/// layout's folder has a link to this computer's shell.
std::string heardFrom(const char* program, const char* line) {
  @autoreleasepool {
    NSTask task = NSTask::init();
    task.setLaunchPath(program);
    task.setArguments(NSArray::arrayWithObjects({NSString("-c"), NSString(line)}));
    const NSPipe pipe = NSPipe::pipe();
    task.setStandardOutput(pipe);
    task.launch();
    ::NSData* heard = device::native(pipe.fileHandleForReading().readDataToEndOfFile());
    return {static_cast<const char*>([heard bytes]), [heard length]};
  }
}

TEST(Task, GivesWhatTheProgramWrites) {
  EXPECT_EQ(heardFrom("/bin/sh", "echo heard; echo twice"), "heard\ntwice\n");
}

TEST(Task, FindsProgramsWhereTheLayoutHasThem) {
  EXPECT_EQ(heardFrom("/bin/sh", "echo $PATH"),
            QUILLMERE_PREFIX "/usr/bin:" QUILLMERE_PREFIX "/bin:/usr/bin:/bin\n");
}

TEST(Task, ThatCannotBeStartedGivesNothingAndKeepsNobodyWaiting) {
  EXPECT_EQ(heardFrom("/no/such/shell", "echo heard"), "");
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
