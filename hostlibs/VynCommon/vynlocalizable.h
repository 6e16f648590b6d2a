#pragma once

#include "vyncommonglobal.h"

#include <QHash>
#include <QString>

/*!
    The English default texts of the common library, served through
    QtCommonsConstants::qLocalizedString().

    Two tables: "VynLocalizable" (general words such as "MULTIPLE") and
    "VynParamNames" (display names of parameters, looked up by
    VynProxyParamPath::getLocalizedNameForFamily()). Both are registered when
    the library is loaded and again, harmlessly, on every opening.
*/
class VYNCOMMON_EXPORT VynLocalizable
{
public:
    static const QString kContext;           // "VynLocalizable"
    static const QString kParamNamesContext; // "VynParamNames"

    static const QHash<QString, QString>& table();
    static const QHash<QString, QString>& paramNamesTable();

    static void registerTables();
};
