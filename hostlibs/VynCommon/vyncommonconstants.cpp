#include "vyncommonconstants.h"

const QString kVynNullString;
