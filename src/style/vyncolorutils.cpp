#include "vyncolorutils.h"

VynColorUtils::VynColorUtils(QObject* parent) : QObject(parent) {}
