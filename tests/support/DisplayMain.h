#pragma once

#include "support/TestDisplay.h"

namespace velmora::test {

/// The display that all tests of the program share, with a window manager.
TestDisplay& display();

} // namespace velmora::test
