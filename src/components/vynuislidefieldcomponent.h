#pragma once

#include "vynuiglobal.h"

#include "vynuislidercomponent.h"

#include <QStringList>
#include <QtQml/qqmlregistration.h>

/*!
    The model of a slide field: a slider model that also shows its value
    converted by the transformer (displayedValue and the displayed limits),
    supports relative editing and lets the user choose among units.

    - displayedValue, displayedMinValue and displayedMaxValue are the
      transformer's rawToDisplayed() of value, minValue and maxValue (float in,
      float out); 0 without a transformer. displayedValueChanged() follows
      every valueChanged(); the displayed limits notify through
      minValueChanged() and maxValueChanged(), which are also emitted when a
      unit or transformer change moves them.
    - unitIndex is the position of the transformer's current unit in `units`
      (exact text), -1 without a transformer or match.
    - allowsUnitChoosing is true when there are at least two units and a unit
      validator is installed.
    - chooseUnitAction(index) passes units[index] to the unit validator; a
      negative index or one at or past the number of units is logged ("Cannot
      select Unit. Index out of range") and changes nothing. expectsUnit(text)
      passes any text to the unit validator.
    - The host's unit validator changes the unit by calling setUnit(index,
      force): it selects units[index] on the component's transformer, re-makes
      stringValue (valueChanged() when the text changed), then emits
      unitIndexChanged(), displayedValueChanged(), minValueChanged() and
      maxValueChanged(). When the unit was already selected the signals are
      emitted only if \a force is true. An index out of range, a missing
      transformer or a unit the transformer does not have is logged and
      changes nothing. Selecting a unit directly on transformer() has the same
      effect as setUnit().
    - shouldBeginSliding() answers as the slider's does; when sliding may begin
      it emits scheduleSlideFieldPanHint() so the host can offer its hint on
      dragging.
    - expectsValue() hands the value to the value validator as the slider's
      does, marked relative when either the call or the component's
      `relative` flag says so. An accepted final value that does not come from
      a drag (a typed or stepped entry, `sliding` false) emits
      scheduleSlideFieldTextHint() so the host can offer its hint on typing.
*/
class VYNUI_EXPORT VynUISlideFieldComponent : public VynUISliderComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double displayedValue READ displayedValue NOTIFY displayedValueChanged)
    Q_PROPERTY(double displayedMinValue READ displayedMinValue NOTIFY minValueChanged)
    Q_PROPERTY(double displayedMaxValue READ displayedMaxValue NOTIFY maxValueChanged)
    Q_PROPERTY(bool relative READ relative WRITE setRelative NOTIFY relativeChanged)
    Q_PROPERTY(QStringList units READ units NOTIFY unitsChanged)
    Q_PROPERTY(int unitIndex READ unitIndex NOTIFY unitIndexChanged)
    Q_PROPERTY(bool allowsUnitChoosing READ allowsUnitChoosing NOTIFY allowsUnitChoosingChanged)

public:
    using UnitValidator =
        std::function<void(VynUISlideFieldComponent* p_component, QString& p_unit)>;

    explicit VynUISlideFieldComponent(QObject* parent = nullptr, bool p_enableLogs = true);
    ~VynUISlideFieldComponent() override;

    double displayedValue() const;
    double displayedMinValue() const;
    double displayedMaxValue() const;
    bool relative() const { return m_relative; }
    void setRelative(bool relative);
    QStringList units() const { return m_units; }
    void setUnits(const QStringList& units);
    int unitIndex() const;
    bool allowsUnitChoosing() const;

    void setUnit(int p_index, bool p_force);
    void setUnitValidator(UnitValidator validator);
    bool hasUnitValidator() const { return static_cast<bool>(m_unitValidator); }
    //! QML form: \a p_validator is called with (component, unit text); null removes it.
    Q_INVOKABLE void setUnitValidatorQml(QJSValue p_validator);

    //! The transformer's key, or the null string without a transformer.
    QString getTransformerName() const;

    Q_INVOKABLE void chooseUnitAction(int p_index);

    void setTransformer(VynTransformer* transformer) override;

public slots:
    bool shouldBeginSliding() override;
    bool expectsValue(double p_value, bool p_isRelative, double p_prevValue,
                      bool p_isFinal) override;
    void expectsUnit(QString p_unit);

signals:
    void displayedValueChanged();
    void relativeChanged();
    void unitsChanged();
    void unitIndexChanged();
    void allowsUnitChoosingChanged();
    void scheduleSlideFieldTextHint();
    void scheduleSlideFieldPanHint();

private:
    //! displayedValueChanged(), minValueChanged(), maxValueChanged(), in this order.
    void emitDisplayedValues();
    void watchTransformer();
    void onTransformerUnitChanged();
    void setAllowsUnitChoosingFrom(bool before);

    bool m_relative = false;
    QStringList m_units;
    UnitValidator m_unitValidator;
    QMetaObject::Connection m_unitConnection;
};
