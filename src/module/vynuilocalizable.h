#pragma once

#include "vynuiglobal.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPair>
#include <QString>

/*!
    The module's localisation table: key to default English text. Its context
    is the class name, "VynUILocalizable"; VynUIPlugin::onOpeningModule()
    registers it with QtCommons.
*/
class VYNUI_EXPORT VynUILocalizable
{
    Q_GADGET

public:
    //! The 48 entries in their canonical order.
    static const QList<QPair<QString, QString>>& entries();

    static const QHash<QString, QString> k_VynUILocalizableHash;

    //! "VynUILocalizable".
    static QString context();
};
