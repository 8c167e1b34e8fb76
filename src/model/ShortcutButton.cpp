#include "model/ShortcutButton.h"
