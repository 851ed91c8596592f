#include "desktop/MessageUI/MimeMessage.h"

#include <system_error>

#include "desktop/MemoryFile.h"
#include "desktop/MessageUI/MailFields.h"
#include "desktop/Process.h"

namespace desktop {

std::string format(const MimeMessage& message) {
  const Descriptor fields = memoryFile(packed(message));
  const Descriptor written = memoryFile();
  Process writer({QUILLMERE_MAIL_WRITER, {}, fields.number(), written.number(), {}, {}});
  if (const int status = writer.wait(); status != 0) {
    throw std::system_error(std::make_error_code(std::errc::io_error),
                            "the program that writes mails ended with " + std::to_string(status));
  }
  return contentsOf(written);
}

}  // namespace desktop
