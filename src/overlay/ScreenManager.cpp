#include "overlay/ScreenManager.h"
