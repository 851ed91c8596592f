#pragma once

#import <Foundation/Foundation.h>

namespace doubles {

/// What answers in place of Foundation's own method when the bundle sends this message to a value
/// of Foundation's: it notes the message in the stand-in's journal, and passes it on. Null for what
/// the stand-in notes nothing of, and for the doubles, which note their messages themselves.
IMP recorded(id receiver, SEL selector);

}  // namespace doubles
