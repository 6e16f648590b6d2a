#pragma once

#include "vynuiglobal.h"

#include "vynuicomponent.h"

#include <qtcommonsconstants.h>
#include <vyndynamiccommon.h>

#include <QList>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

/*!
    The model of a small dynamics (compressor) curve thumbnail: the dynamics blocks the host
    pushes (not owned), an on state (tri-state, 2 is mixed), an empty flag and the threshold
    range of the plot.

    setCommonDynamics() replaces the list and always emits commonDynamicsChanged(). setOn() and
    setEmpty() compare and emit. setThresholdLimits() stores both limits and emits
    thresholdLimitsChanged() unless both are exactly the stored ones.
    commonDynamicsValuesChanged() is emitted by the host when a value of a block changed.

    The QML thumbnail asks presentConfirmChangeAlertIfNeededQml() before it emits
    activationClicked(turnOn), and emits clicked() to open the editor.
*/
class VYNUI_EXPORT VynUIDynThumbnailComponent : public VynUIComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariantList commonDynamics READ commonDynamicsQml NOTIFY commonDynamicsChanged)
    Q_PROPERTY(QtCommonsConstants::VynBOOL isOn READ isOn WRITE setOn NOTIFY isOnChanged)
    Q_PROPERTY(bool isEmpty READ isEmpty WRITE setEmpty NOTIFY isEmptyChanged)
    Q_PROPERTY(double thresholdMin READ thresholdMin NOTIFY thresholdLimitsChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax NOTIFY thresholdLimitsChanged)

public:
    explicit VynUIDynThumbnailComponent(QObject* parent = nullptr);
    ~VynUIDynThumbnailComponent() override;

    const QList<VynDynamicCommon*>& commonDynamics() const { return m_commonDynamics; }
    void setCommonDynamics(const QList<VynDynamicCommon*>& p_dynamics);
    QVariantList commonDynamicsQml() const;

    QtCommonsConstants::VynBOOL isOn() const { return m_isOn; }
    void setOn(QtCommonsConstants::VynBOOL p_on);
    bool isEmpty() const { return m_isEmpty; }
    void setEmpty(bool p_empty);

    double thresholdMin() const { return m_thresholdMin; }
    double thresholdMax() const { return m_thresholdMax; }
    void setThresholdLimits(double p_min, double p_max);

    Q_INVOKABLE QString toStringValue() override;

signals:
    void thresholdLimitsChanged();
    void commonDynamicsChanged();
    void commonDynamicsValuesChanged();
    void isOnChanged();
    void isEmptyChanged();
    void activationClicked(bool p_turnOn);
    void clicked();

private:
    QList<VynDynamicCommon*> m_commonDynamics;
    QtCommonsConstants::VynBOOL m_isOn = QtCommonsConstants::VynBOOLFalse;
    bool m_isEmpty = false;
    double m_thresholdMin = -36.0;
    double m_thresholdMax = 0.0;
};
