#include "desktop/Phone.h"

#include <cassert>

#include "desktop/Complaint.h"

namespace desktop {

namespace {

Phone* phoneThatIsOn = nullptr;

}  // namespace

Phone::Phone(const std::filesystem::path& host)
    : report([this](const std::string& line) {
        complain(line);
        banner = line;
      }),
      folder(host),
      preferences(*this) {
  assert(!phoneThatIsOn);
  phoneThatIsOn = this;
}

Phone::~Phone() {
  springBoard.shutDown();  // What is open may still call on the phone.
  phoneThatIsOn = nullptr;
}

Phone& Phone::current() {
  assert(phoneThatIsOn);
  return *phoneThatIsOn;
}

}  // namespace desktop
