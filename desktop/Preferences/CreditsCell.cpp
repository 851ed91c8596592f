#include "desktop/Preferences/Cells.h"

namespace desktop {

std::vector<CreditsCell::Person> CreditsCell::people() const {
  const std::string picture = text("designerImageName");
  return {
      {text("twitterLabel"), "Twitter", "https://twitter.com/" + text("twitterAccount"), ""},
      {text("redditLabel"), "Reddit", "https://www.reddit.com/user/" + text("redditAccount"), ""},
      {text("designerLabel"), "Designer", "https://twitter.com/" + text("designerAccount"),
       picture.empty() ? "" : picture + "@3x.png"},
  };
}

HexColor CreditsCell::tint() const {
  return HexColor::parse(text("tintColor")).value_or(HexColor{});
}

}  // namespace desktop
