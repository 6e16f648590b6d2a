#pragma once

#include "vynuiglobal.h"

#include <QMetaType>
#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QVariant>

/*!
    What a button does when clicked, as the host configures it: the action
    code, the step and values of an option the action sets, and the mask of
    the bits the action toggles.

    source identifies the button the record was read from (the button writes
    it when buttonConfig is read; 0 in a record made elsewhere). It is an
    identity token for the host, never dereferenced, and takes no part in
    sameAction(): a button configured from another button's record does not
    count that as a change.

    Equality (==) compares every field, source included.
*/
struct VYNUI_EXPORT VynUIButtonConfig
{
    Q_GADGET
    QML_VALUE_TYPE(vynUIButtonConfig)
    Q_PROPERTY(int action MEMBER action)
    Q_PROPERTY(int optionStep MEMBER optionStep)
    Q_PROPERTY(int toggleBitMask MEMBER toggleBitMask)
    Q_PROPERTY(QVariant optionValue MEMBER optionValue)
    Q_PROPERTY(QVariant optionAltValue MEMBER optionAltValue)
    Q_PROPERTY(qint64 source MEMBER source)

public:
    int action = 0;
    int optionStep = 0;
    int toggleBitMask = 0;
    QVariant optionValue;
    QVariant optionAltValue;
    qint64 source = 0;

    //! Whether action, optionStep, optionValue and optionAltValue all equal \a o's.
    bool sameAction(const VynUIButtonConfig& o) const
    {
        return action == o.action && optionStep == o.optionStep && optionValue == o.optionValue &&
               optionAltValue == o.optionAltValue;
    }
    bool operator==(const VynUIButtonConfig& o) const
    {
        return sameAction(o) && toggleBitMask == o.toggleBitMask && source == o.source;
    }
    bool operator!=(const VynUIButtonConfig& o) const { return !(*this == o); }
};

Q_DECLARE_METATYPE(VynUIButtonConfig)
