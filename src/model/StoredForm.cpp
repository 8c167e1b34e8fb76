#include "model/StoredForm.h"
