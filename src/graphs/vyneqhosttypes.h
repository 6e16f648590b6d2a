#pragma once

#include <vynarrayeq.h>
#include <vyndynamiccommon.h>
#include <vyneqband.h>
#include <vyneqcommoneq.h>

#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/*!
    The EQ and dynamics objects of the host library, known to QML as property and argument
    types (eq.bands[0].gain, block.threshold); the host creates them, QML does not.
*/
struct VynEQBandForeign
{
    Q_GADGET
    QML_FOREIGN(VynEQBand)
    QML_ANONYMOUS
};

struct VynEQCommonEQForeign
{
    Q_GADGET
    QML_FOREIGN(VynEQCommonEQ)
    QML_ANONYMOUS
};

struct VynArrayEQForeign
{
    Q_GADGET
    QML_FOREIGN(VynArrayEQ)
    QML_ANONYMOUS
};

struct VynDynamicCommonForeign
{
    Q_GADGET
    QML_FOREIGN(VynDynamicCommon)
    QML_ANONYMOUS
};
