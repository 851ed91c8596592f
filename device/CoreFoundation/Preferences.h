#pragma once

#import <Foundation/Foundation.h>

namespace device {

/// Makes the preferences service and the file of this domain agree. The service answers from
/// memory and writes files when it likes, while the bundle's pages read and write them themselves.
/// Nothing happens for nil.
void synchronize(::NSString* domain);

/// The same for the domain of a preferences file, which is named after it.
void synchronizeFile(::NSString* path);

}  // namespace device
