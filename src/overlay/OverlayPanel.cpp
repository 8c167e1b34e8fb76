#include "overlay/OverlayPanel.h"
