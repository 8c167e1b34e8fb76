#include "model/ShortcutAction.h"
