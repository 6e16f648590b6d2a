#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

// What the gallery shows about the module itself: the view enums with their values.
class GalleryModuleInfo : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit GalleryModuleInfo(QObject* parent = nullptr);

    //! One entry per enum of VynViewUtils: { name, keys: [{ key, value }] }.
    Q_INVOKABLE QVariantList viewEnums() const;
    Q_INVOKABLE QString moduleVersion() const;
    //! Shows every hint the user chose never to see again.
    Q_INVOKABLE void resetHiddenHints() const;
    Q_INVOKABLE bool hasHiddenHints() const;
};
