#include "platform/freedesktop/FreedesktopWorkspace.h"
