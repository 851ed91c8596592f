#include "desktop/Preferences/Cells.h"

namespace desktop {

std::vector<CreditsCell::Person> CreditsCell::people() const {
  return {
      {text("twitterLabel"), "Twitter", "https://twitter.com/" + text("twitterAccount")},
      {text("redditLabel"), "Reddit", "https://www.reddit.com/user/" + text("redditAccount")},
      {text("designerLabel"), "Designer", "https://twitter.com/" + text("designerAccount")},
  };
}

HexColor CreditsCell::tint() const {
  return HexColor::parse(text("tintColor")).value_or(HexColor{});
}

}  // namespace desktop
