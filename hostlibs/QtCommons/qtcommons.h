#pragma once

#include "qtcommonsglobal.h"

#include <QHash>
#include <QString>
#include <QStringList>

/*!
    Localisation tables.

    A table maps keys to default (English) texts under a context name. Modules
    register their tables when they open; lookups go through
    QtCommonsConstants::qLocalizedString(). Registering a table under a context
    that already has one merges the new entries over the old ones, so
    registering the same table twice is harmless.
*/
namespace QtCommons {

QTCOMMONS_EXPORT void addQLocalTable(const QString& context, const QHash<QString, QString>& table);

//! True when a table is registered under \a context.
QTCOMMONS_EXPORT bool hasQLocalTable(const QString& context);

//! Names of the registered tables, sorted.
QTCOMMONS_EXPORT QStringList qLocalTableNames();

//! The default text of \a key in \a context, or a null string when there is none.
QTCOMMONS_EXPORT QString qLocalTableText(const QString& context, const QString& key);

} // namespace QtCommons
