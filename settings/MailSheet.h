#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "desktop/MessageUI/MailBody.h"
#include "settings/Resource.h"

namespace settings {

/// The node of a mail composer that the tree calls `id`.
nlohmann::json mailNode(const desktop::MailBody& mail, const std::string& id);

/// Taps the composer's button that the tree calls `target`; false when there is none.
bool tapMail(desktop::MailBody& mail, const std::string& id, std::string_view target);

/// Puts text into the composer's field that the tree calls `target`; false when there is none.
bool typeIntoMail(desktop::MailBody& mail, const std::string& id, std::string_view target,
                  const std::string& text);

/// The attachment at that address; none when there is none.
std::optional<Resource> attachmentAt(const desktop::MailBody& mail, const std::string& id,
                                     std::string_view address);

}  // namespace settings
