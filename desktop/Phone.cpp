#include "desktop/Phone.h"

#include "desktop/Complaint.h"

namespace desktop {

Phone::Phone(const std::filesystem::path& host)
    : report([this](const std::string& line) {
        complain(line);
        banner = line;
      }),
      folder(host),
      preferences(*this) {
  assert(!on_);
  on_ = this;
}

Phone::~Phone() {
  springBoard.shutDown();  // What is open may still call on the phone.
  on_ = nullptr;
}

}  // namespace desktop
