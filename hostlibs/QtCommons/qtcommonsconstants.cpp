#include "qtcommonsconstants.h"

#include "qtcommons.h"

#include <QCoreApplication>

namespace QtCommonsConstants {

QString qLocalizedString(const QString& key, const QString& table, const QString& comment)
{
    const QByteArray context = table.toUtf8();
    const QByteArray source = key.toUtf8();
    const QByteArray disambiguation = comment.toUtf8();
    const QString translated =
        QCoreApplication::translate(context.constData(), source.constData(),
                                    comment.isEmpty() ? nullptr : disambiguation.constData());
    if (!translated.isEmpty() && translated != key)
        return translated;

    const QString text = QtCommons::qLocalTableText(table, key);
    if (!text.isNull())
        return text;
    return key;
}

} // namespace QtCommonsConstants
