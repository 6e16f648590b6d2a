#pragma once

#include "vynuiglobal.h"

#include "vynuibuttonconfig.h"
#include "vynuicomponent.h"

#include <qtcommonsconstants.h>

#include <QString>
#include <QtQml/qqmlregistration.h>
#include <QVariant>

/*!
    The model of an on/off or action button bound to one parameter or to a
    selection of parameters.

    isOn is tri-state: VynNO (0), VynYES (1) or VynBOOLMixed (2) when the
    selected parameters disagree. activated reads isOn == 1 and multiple
    isOn == 2; both change with onChanged(). Any other integer written to isOn
    (QML writes integers) is logged and ignored.

    Configuration: action, optionStep, optionValue and optionAltValue each
    emit configChanged(); toggleBitMask emits toggleBitMaskChanged().
    setButtonConfig(c) assigns the four action fields and emits configChanged()
    once when any of them differs, then updates the toggle mask on its own: a
    record that only changes the mask emits toggleBitMaskChanged() and no
    configChanged(). Reading buttonConfig gives the stored fields with source
    set to this button's identity.

    A click leads to nextOnForOn(isOn): on for off, off for on and for mixed.
    toStringValue() reads the null string when off, the text when on and
    "<Mult.> <text>" (the "MULTIPLE_SHORT" text of "VynLocalizable") when mixed.

    Values that are not numbers: rate refuses NaN and infinities, and
    optionValue, optionAltValue and buttonConfig refuse a record holding a NaN
    (the old state stays, nothing is emitted, one line is logged). rate
    compares exactly.

    The QML buttons ask presentConfirmChangeAlertIfNeededQml() before acting,
    then emit clicked(); a long press emits longPressed().
*/
class VYNUI_EXPORT VynUIButtonComponent : public VynUIComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QtCommonsConstants::VynBOOL isOn READ isOn WRITE setIsOn NOTIFY onChanged)
    Q_PROPERTY(bool animating READ animating WRITE setAnimating NOTIFY animatingChanged)
    Q_PROPERTY(double rate READ rate WRITE setRate NOTIFY rateChanged)
    Q_PROPERTY(bool activated READ activated NOTIFY onChanged)
    Q_PROPERTY(bool multiple READ multiple NOTIFY onChanged)
    Q_PROPERTY(int action READ action WRITE setAction NOTIFY configChanged)
    Q_PROPERTY(bool titleDependsOnAction READ titleDependsOnAction WRITE setTitleDependsOnAction
                   NOTIFY titleDependsOnActionChanged)
    Q_PROPERTY(int optionStep READ optionStep WRITE setOptionStep NOTIFY configChanged)
    Q_PROPERTY(QVariant optionValue READ optionValue WRITE setOptionValue NOTIFY configChanged)
    Q_PROPERTY(
        QVariant optionAltValue READ optionAltValue WRITE setOptionAltValue NOTIFY configChanged)
    Q_PROPERTY(
        int toggleBitMask READ toggleBitMask WRITE setToggleBitMask NOTIFY toggleBitMaskChanged)
    Q_PROPERTY(
        VynUIButtonConfig buttonConfig READ buttonConfig WRITE setButtonConfig NOTIFY configChanged)

public:
    explicit VynUIButtonComponent(QObject* parent = nullptr);
    ~VynUIButtonComponent() override;

    //! The state a click leads to: VynYES for VynNO, VynNO otherwise (a mixed button turns off).
    static QtCommonsConstants::VynBOOL nextOnForOn(QtCommonsConstants::VynBOOL on);

    QString text() const { return m_text; }
    void setText(const QString& text);
    QtCommonsConstants::VynBOOL isOn() const { return m_isOn; }
    void setIsOn(QtCommonsConstants::VynBOOL on);
    bool animating() const { return m_animating; }
    void setAnimating(bool animating);
    double rate() const { return m_rate; }
    void setRate(double rate);
    bool activated() const { return m_isOn == QtCommonsConstants::VynBOOLTrue; }
    bool multiple() const { return m_isOn == QtCommonsConstants::VynBOOLMixed; }
    int action() const { return m_config.action; }
    void setAction(int action);
    bool titleDependsOnAction() const { return m_titleDependsOnAction; }
    void setTitleDependsOnAction(bool depends);
    int optionStep() const { return m_config.optionStep; }
    void setOptionStep(int step);
    QVariant optionValue() const { return m_config.optionValue; }
    void setOptionValue(const QVariant& value);
    QVariant optionAltValue() const { return m_config.optionAltValue; }
    void setOptionAltValue(const QVariant& value);
    int toggleBitMask() const { return m_config.toggleBitMask; }
    void setToggleBitMask(int mask);
    VynUIButtonConfig buttonConfig() const;
    void setButtonConfig(const VynUIButtonConfig& config);

    Q_INVOKABLE void restoreFromUIComponent(VynUIComponent* p_other) override;
    //! Sets text and the tooltip to \a p_string.
    Q_INVOKABLE void setTextAndTip(const QString& p_string);
    Q_INVOKABLE QString toStringValue() override;

signals:
    void textChanged();
    void onChanged();
    void animatingChanged();
    void rateChanged();
    void configChanged();
    void toggleBitMaskChanged();
    void titleDependsOnActionChanged();
    void clicked();

public slots:
    void onStyleChanged();

private:
    //! True, after one logged line, when \a value holds a floating-point NaN.
    bool refusesNotANumberIn(const QVariant& value, const char* function) const;

    QString m_text;
    QtCommonsConstants::VynBOOL m_isOn = QtCommonsConstants::VynNO;
    bool m_animating = false;
    double m_rate = 0.0;
    VynUIButtonConfig m_config;
    bool m_titleDependsOnAction = false;
};
