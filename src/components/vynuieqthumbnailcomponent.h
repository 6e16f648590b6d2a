#pragma once

#include "vynuiglobal.h"

#include "vynuicomponent.h"

#include <qtcommonsconstants.h>
#include <vynarrayeq.h>
#include <vyneqcommoneq.h>

#include <QList>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

/*!
    The model of a small EQ curve thumbnail: the channel EQs and array EQs the host pushes (not
    owned), an on state (tri-state, 2 is mixed), an empty flag and the gain range of the plot.

    setCommonEQs() and setArrayEQs() replace the list and always emit their change signal.
    setOn() and setEmpty() compare and emit. setGainLimits() stores both limits and emits
    gainLimitsChanged() unless both are exactly the stored ones. updateEQValues() is emitted by
    the host when a value of a band changed, so that the curve is computed again.

    The QML thumbnail asks presentConfirmChangeAlertIfNeededQml() before it emits
    activationClicked(turnOn), and emits clicked() to open the editor.
*/
class VYNUI_EXPORT VynUIEQThumbnailComponent : public VynUIComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariantList commonEQs READ commonEQsQml NOTIFY commonEQsChanged)
    Q_PROPERTY(QVariantList arrayEQs READ arrayEQsQml NOTIFY arrayEQsChanged)
    Q_PROPERTY(QtCommonsConstants::VynBOOL isOn READ isOn WRITE setOn NOTIFY isOnChanged)
    Q_PROPERTY(bool isEmpty READ isEmpty WRITE setEmpty NOTIFY isEmptyChanged)
    Q_PROPERTY(double gainMin READ gainMin NOTIFY gainLimitsChanged)
    Q_PROPERTY(double gainMax READ gainMax NOTIFY gainLimitsChanged)

public:
    explicit VynUIEQThumbnailComponent(QObject* parent = nullptr);
    ~VynUIEQThumbnailComponent() override;

    const QList<VynEQCommonEQ*>& commonEQs() const { return m_commonEQs; }
    void setCommonEQs(const QList<VynEQCommonEQ*>& p_eqs);
    QVariantList commonEQsQml() const;
    const QList<QList<VynArrayEQ*>>& arrayEQs() const { return m_arrayEQs; }
    void setArrayEQs(const QList<QList<VynArrayEQ*>>& p_eqs);
    QVariantList arrayEQsQml() const;

    QtCommonsConstants::VynBOOL isOn() const { return m_isOn; }
    void setOn(QtCommonsConstants::VynBOOL p_on);
    bool isEmpty() const { return m_isEmpty; }
    void setEmpty(bool p_empty);

    double gainMin() const { return m_gainMin; }
    double gainMax() const { return m_gainMax; }
    void setGainLimits(double p_min, double p_max);

    Q_INVOKABLE QString toStringValue() override;

signals:
    void gainLimitsChanged();
    void commonEQsChanged();
    void arrayEQsChanged();
    void updateEQValues();
    void isOnChanged();
    void isEmptyChanged();
    void activationClicked(bool p_turnOn);
    void clicked();

private:
    QList<VynEQCommonEQ*> m_commonEQs;
    QList<QList<VynArrayEQ*>> m_arrayEQs;
    QtCommonsConstants::VynBOOL m_isOn = QtCommonsConstants::VynBOOLFalse;
    bool m_isEmpty = false;
    double m_gainMin = -18.0;
    double m_gainMax = 18.0;
};
