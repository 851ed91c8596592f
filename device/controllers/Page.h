#pragma once

#import <CepheiPrefs/HBRootListController.h>
#import <Preferences/PSSpecifier.h>

#include "device/Controller.h"
#include "platform/Preferences/PSListController.h"

/// Declares one of the bundle's pages. The classes are static, so that the platform finds the
/// bundle, and in it the list resources, by them.
#define QUILLMERE_PAGE(Name)                                  \
  @interface Name : HBRootListController <QMListController> { \
    std::shared_ptr<platform::UIViewController> _controller;  \
  }                                                           \
  @end
