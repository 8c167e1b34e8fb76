#include "actions/ActionEngine.h"
