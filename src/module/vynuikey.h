#pragma once

#include "vynuiglobal.h"

#include <QObject>
#include <QString>

//! Keys of the module's settings (group, hidden hints) and of stored rectangles.
class VYNUI_EXPORT VynUIKey
{
    Q_GADGET

public:
    class VYNUI_EXPORT Settings
    {
    public:
        static const QString VynUIGroup;  // "VynUI"
        static const QString HiddenHints; // "hiddenHints"
        static const QString HiddenHint;  // "hiddenHint"
    };

    class VYNUI_EXPORT Frame
    {
    public:
        static const QString X;      // "x"
        static const QString Y;      // "y"
        static const QString Width;  // "width"
        static const QString Height; // "height"
    };
};
