#pragma once

// GNUstep's headers ask for this name; the blocks run time that Debian has calls it otherwise.
#include <Block.h>
