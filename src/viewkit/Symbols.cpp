#include "viewkit/Symbols.h"
