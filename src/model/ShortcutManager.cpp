#include "model/ShortcutManager.h"
