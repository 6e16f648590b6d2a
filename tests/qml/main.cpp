#include "quicktestsetup.h"

#include <QtQuickTest/quicktest.h>

QUICK_TEST_MAIN_WITH_SETUP(vynui, QuickTestSetup)
