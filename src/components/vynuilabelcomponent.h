#pragma once

#include "vynuiglobal.h"

#include "vynuicomponent.h"

#include <QColor>
#include <QString>
#include <QtQml/qqmlregistration.h>

/*!
    The model of a read-only label bound to a parameter.

    textColor reads the effective colour: the colour set with setTextColor()
    when it is valid; otherwise, with a status level of 0 or more, the status
    colour of that level (VynColorAppearance::coloredLabelColorForStyle);
    otherwise the label colour of max(labelLevel, 0)
    (VynColorAppearance::labelColorForStyle), both for the current style.
    Writing an invalid colour returns to the fallbacks. setTextColor(),
    setLabelLevel() and setStatusLevel() store and emit textColorChanged() only
    on change; a style change emits textColorChanged() too.

    toStringValue() reads the text. tooltipChanged() is declared for the
    controls but not emitted by the label.
*/
class VYNUI_EXPORT VynUILabelComponent : public VynUIComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor NOTIFY textColorChanged)

public:
    explicit VynUILabelComponent(QObject* parent = nullptr);
    ~VynUILabelComponent() override;

    QString text() const { return m_text; }
    void setText(const QString& text);
    //! The effective colour.
    QColor textColor() const;
    //! The colour set explicitly, invalid when none is.
    QColor explicitTextColor() const { return m_textColor; }
    void setTextColor(const QColor& color);
    int labelLevel() const { return m_labelLevel; }
    void setLabelLevel(int level);
    int statusLevel() const { return m_statusLevel; }
    void setStatusLevel(int level);

    //! Sets text and the tooltip to \a p_string.
    Q_INVOKABLE void setTextAndTip(const QString& p_string);
    Q_INVOKABLE QString toStringValue() override;

signals:
    void textChanged();
    void tooltipChanged();
    void textColorChanged();

public slots:
    void onStyleChanged();

private:
    QString m_text;
    QColor m_textColor;
    int m_labelLevel = 0;
    int m_statusLevel = -1;
};
