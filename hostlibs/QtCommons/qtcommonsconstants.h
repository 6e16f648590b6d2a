#pragma once

#include "qtcommonsglobal.h"

#include <QObject>
#include <QString>

namespace QtCommonsConstants {
Q_NAMESPACE_EXPORT(QTCOMMONS_EXPORT)

//! Tri-state flag: off, on, or mixed (a selection whose members differ). Also a table index.
//! VynNO and VynYES are the older names of off and on.
enum VynBOOL : int {
    VynBOOLFalse = 0,
    VynBOOLTrue = 1,
    VynBOOLMixed = 2,
    VynNO = VynBOOLFalse,
    VynYES = VynBOOLTrue,
};
Q_ENUM_NS(VynBOOL)

/*!
    The localised text of \a key in the table \a table.

    Lookup order: an installed QTranslator (context \a table, source text
    \a key, disambiguation \a comment), then the default text that the table
    registered with QtCommons::addQLocalTable(), then \a key itself, so an
    unknown key always answers something readable.
*/
QTCOMMONS_EXPORT QString qLocalizedString(const QString& key, const QString& table,
                                          const QString& comment = QString());

} // namespace QtCommonsConstants
