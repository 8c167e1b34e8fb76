#include "platform/x11/X11Session.h"
