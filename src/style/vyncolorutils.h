#pragma once

#include "vynuiglobal.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/*!
    Colour arithmetic over the colour tables. In QML the uncreatable element
    VynColorUtils carries the style enums (VynColorUtils.VynStyleDark).
*/
class VYNUI_EXPORT VynColorUtils : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("VynColorUtils only carries the style enums and static colour functions")

public:
    enum VynStyle { VynStyleLight = 0, VynStyleDark = 1 };
    Q_ENUM(VynStyle)

    enum VynStylePreference { VynStylePrefLight = 0, VynStylePrefDark = 1, VynStylePrefSystem = 2 };
    Q_ENUM(VynStylePreference)

    explicit VynColorUtils(QObject* parent = nullptr);
};
