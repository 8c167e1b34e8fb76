#include "overlay/OverlayController.h"
