#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "plist/Value.h"

namespace plist {
namespace {

/// Copies of a text share its bytes; each thread takes and lets go of some of its own.
TEST(Threads, MayCopyTheSameText) {
  const std::string letters(1000, 'x');
  std::vector<Value> last(2, Value(false));
  {
    const Value text = Value::string(letters);
    std::vector<std::jthread> threads;
    for (Value& mine : last) {
      threads.emplace_back([&mine, text] {
        for (int round = 0; round < 100'000; ++round) {
          const Value copy = text;
          mine = copy;
        }
      });
    }
  }
  EXPECT_EQ(last[0].string(), letters);
  EXPECT_EQ(last[1], last[0]);
  last.clear();
}

}  // namespace
}  // namespace plist
