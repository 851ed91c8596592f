#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>

#include "plist/Document.h"
#include "tests/plist/Describe.h"
#include "tests/plist/Random.h"

/// What the oracle script needs of the codec:
///   plist_oracle_samples make plistlib|plistutil FOLDER SEED COUNT   files, and what is in them
///   plist_oracle_samples describe FILE...                            a line of JSON for each file
namespace {

/// plistlib counts dates in microseconds of the years 1 to 9999 and takes no lone surrogates;
/// plistutil has besides no empty keys, no sign of a zero and no integers above 2^63 - 1 in XML.
/// XML has no UIDs: every other list goes without, so that its XML is made as well.
samples::Variety varietyFor(const std::string& oracle, int number) {
  if (oracle == "plistlib") {
    return {.anyDates = false, .anyText = false, .uids = number % 2 == 0};
  }
  return {.singleReals = false,
          .anyDates = false,
          .anyText = false,
          .emptyKeys = false,
          .uids = false,
          .largeIntegers = false};
}

void save(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

int make(const std::string& oracle, const std::string& folder, unsigned long seed, int count) {
  std::mt19937_64 random(seed);
  for (int i = 0; i < count; ++i) {
    const plist::Value tree = samples::randomTree(random, varietyFor(oracle, i));
    const std::string path = folder + "/" + std::to_string(i);
    save(path + ".json", samples::describe(tree) + "\n");
    save(path + ".binary", plist::writeBinary(tree));
    if (const auto xml = plist::writeXml(tree)) save(path + ".xml", *xml);
  }
  return EXIT_SUCCESS;
}

int describe(int count, char** paths) {
  for (int i = 0; i < count; ++i) {
    std::ifstream file(paths[i], std::ios::binary);
    std::string bytes(std::istreambuf_iterator<char>(file), {});
    try {
      std::cout << samples::describe(plist::read(std::move(bytes)).root) << '\n';
    } catch (const plist::Unreadable& unreadable) {
      std::cout << "[\"unreadable\", \"" << unreadable.what() << "\"]\n";
    }
  }
  return EXIT_SUCCESS;
}

}  // namespace

int main(int count, char** words) {
  if (count == 6 && std::string(words[1]) == "make") {
    return make(words[2], words[3], std::strtoul(words[4], nullptr, 10), std::atoi(words[5]));
  }
  if (count >= 2 && std::string(words[1]) == "describe") return describe(count - 2, words + 2);
  return EXIT_FAILURE;
}
