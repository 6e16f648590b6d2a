#pragma once

#include "vynuiglobal.h"

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/*!
    A do-nothing item a host creates to check that the module loads:
    KORU_UI { } reads testString "This is a very big test!".
*/
class VYNUI_EXPORT VynUI : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(KORU_UI)
    Q_PROPERTY(QString testString READ testString CONSTANT)

public:
    explicit VynUI(QQuickItem* parent = nullptr);

    QString testString() const { return m_testString; }

private:
    const QString m_testString;
};
