#include "gallerymoduleinfo.h"

#include <vynhintmanager.h>
#include <vynviewutils.h>

#include <QMetaEnum>
#include <QVariantMap>

GalleryModuleInfo::GalleryModuleInfo(QObject* parent) : QObject(parent) {}

QVariantList GalleryModuleInfo::viewEnums() const
{
    QVariantList enums;
    const QMetaObject& meta = VynViewUtils::staticMetaObject;
    for (int e = meta.enumeratorOffset(); e < meta.enumeratorCount(); ++e) {
        const QMetaEnum metaEnum = meta.enumerator(e);
        QVariantList keys;
        for (int k = 0; k < metaEnum.keyCount(); ++k)
            keys.append(QVariantMap{{QStringLiteral("key"), QString::fromLatin1(metaEnum.key(k))},
                                    {QStringLiteral("value"), metaEnum.value(k)}});
        enums.append(QVariantMap{{QStringLiteral("name"), QString::fromLatin1(metaEnum.name())},
                                 {QStringLiteral("keys"), keys}});
    }
    return enums;
}

QString GalleryModuleInfo::moduleVersion() const
{
    return QStringLiteral(VYNUI_VERSION_TEXT);
}

void GalleryModuleInfo::resetHiddenHints() const
{
    VynHintManager::resetHiddenHints();
}

bool GalleryModuleInfo::hasHiddenHints() const
{
    return VynHintManager::hasHiddenHints();
}
