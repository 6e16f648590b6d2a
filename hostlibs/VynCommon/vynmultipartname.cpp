#include "vynmultipartname.h"

#include "vynlocalizable.h"

#include <qtcommonsconstants.h>

#include <QStringList>

QString VynMultiPartName::getTooltipText(const QString& separator) const
{
    if (mixed)
        return QtCommonsConstants::qLocalizedString(QStringLiteral("MULTIPLE"),
                                                    VynLocalizable::kContext);
    QStringList parts;
    for (const QString* part : {&series, &model, &preset}) {
        if (!part->isEmpty())
            parts.append(*part);
    }
    if (parts.isEmpty())
        return QString();
    if (count > 1)
        parts.prepend(QString::number(count) + QChar(0x00D7));
    return parts.join(separator);
}
