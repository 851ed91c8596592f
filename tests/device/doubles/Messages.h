#pragma once

#import <UIKit/UIKit.h>
#include <vector>

#include "platform/ObjectiveC/Method.h"

namespace doubles {

/// The methods that the classes of the bundle have, as a table of the stand-in's. Found with the
/// run time, so what they do not implement is not in it.
std::vector<platform::Method> methodsOf(UIViewController* controller);

/// The controller to which a stand-in's controller passes what it is sent.
UIViewController* behind(const platform::UIViewController& controller);

/// That of the page on top.
UIViewController* controllerOnTop();

}  // namespace doubles
