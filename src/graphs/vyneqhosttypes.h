#pragma once

#include <vynarrayeq.h>
#include <vyndynamiccommon.h>
#include <vyneqband.h>
#include <vyneqcommoneq.h>

#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/*!
    The EQ and dynamics objects of the host library, known to QML by name as property and
    argument types (eq.bands[0].gain, block.threshold); the host creates them, QML does not.
*/
struct VynEQBandForeign
{
    Q_GADGET
    QML_FOREIGN(VynEQBand)
    QML_NAMED_ELEMENT(VynEQBand)
    QML_UNCREATABLE("VynEQBand is created by the host")
};

struct VynEQCommonEQForeign
{
    Q_GADGET
    QML_FOREIGN(VynEQCommonEQ)
    QML_NAMED_ELEMENT(VynEQCommonEQ)
    QML_UNCREATABLE("VynEQCommonEQ is created by the host")
};

struct VynArrayEQForeign
{
    Q_GADGET
    QML_FOREIGN(VynArrayEQ)
    QML_NAMED_ELEMENT(VynArrayEQ)
    QML_UNCREATABLE("VynArrayEQ is created by the host")
};

struct VynDynamicCommonForeign
{
    Q_GADGET
    QML_FOREIGN(VynDynamicCommon)
    QML_NAMED_ELEMENT(VynDynamicCommon)
    QML_UNCREATABLE("VynDynamicCommon is created by the host")
};
