#include "platform/MobileGestalt/MGCopyAnswer.h"

#include <algorithm>
#include <array>

#include "desktop/Message.h"

namespace platform {

namespace {

struct Question {
  std::string_view text;
  std::optional<std::string> desktop::Identity::*answer;
};

constexpr std::array<Question, 3> questions = {{
    {"ProductType", &desktop::Identity::productType},
    {"ProductVersion", &desktop::Identity::productVersion},
    {"BuildVersion", &desktop::Identity::buildVersion},
}};

NSString answerTo(std::string_view text) {
  const auto* question = std::ranges::find(questions, text, &Question::text);
  if (question == questions.end()) return {};
  const auto& answer = desktop::Phone::current().identity.*(question->answer);
  return answer ? NSString(std::string_view(*answer)) : NSString();
}

}  // namespace

NSString MGCopyAnswer(const NSString& question) {
  return desktop::sendClass("MobileGestalt", "MGCopyAnswer:", {question},
                            [&] { return answerTo(question.UTF8String()); });
}

}  // namespace platform
