#include "qtcommons.h"

#include <QMap>

namespace {

// All access happens on the GUI thread, as for every other part of the UI layer.
QHash<QString, QHash<QString, QString>>& tables()
{
    static QHash<QString, QHash<QString, QString>> s_tables;
    return s_tables;
}

} // namespace

namespace QtCommons {

void addQLocalTable(const QString& context, const QHash<QString, QString>& table)
{
    QHash<QString, QString>& target = tables()[context];
    for (auto it = table.cbegin(); it != table.cend(); ++it)
        target.insert(it.key(), it.value());
}

bool hasQLocalTable(const QString& context)
{
    return tables().contains(context);
}

QStringList qLocalTableNames()
{
    QStringList names = tables().keys();
    names.sort();
    return names;
}

QString qLocalTableText(const QString& context, const QString& key)
{
    const auto table = tables().constFind(context);
    if (table == tables().cend())
        return QString();
    return table->value(key);
}

} // namespace QtCommons
