#include "platform/UIKit/UITableViewCell.h"

#import <UIKit/UIKit.h>

#include "device/Native.h"

namespace platform {

using device::adopt;
using device::handle;
using device::native;

static_assert(long(UITableViewCellStyle::Default) == ::UITableViewCellStyleDefault);

UITableViewCell UITableViewCell::initWithStyle(UITableViewCellStyle style,
                                               const NSString& reuseIdentifier) {
  return adopt<UITableViewCell>([[::UITableViewCell alloc]
        initWithStyle:static_cast<::UITableViewCellStyle>(style)
      reuseIdentifier:native(reuseIdentifier)]);
}

UILabel UITableViewCell::textLabel() const { return handle<UILabel>([native(*this) textLabel]); }

}  // namespace platform
