#pragma once

#include "vynuiglobal.h"

#include "vynuicomponent.h"

#include <vyncommonconstants.h>

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/*!
    The model of a combo box whose items map to raw parameter values, bound to
    one parameter or to a selection of parameters with different values.

    itemTexts are the items shown, itemValues the raw value of each item,
    selectedIndexes the items the bound parameters currently hold (more than
    one when a selection disagrees: isMultiple).

    text reads, in this order: the text set explicitly when it is not empty;
    the "MULTIPLE" text of "VynLocalizable" with more than one selected index;
    the item's text with exactly one selected index inside the items; the
    "NO_VALUE" text otherwise (no selection, or an index outside the items).

    setItemTexts() and setSelectedIndexes() compare element by element and on a
    change emit their own signal then textChanged(). setItemValues() stores
    silently. setSelectedValues(values) selects the items whose value is in
    the set, in ascending item order, through setSelectedIndexes().
    comboItemTextFormat is stored and announced for the host.

    The QML combo asks presentConfirmChangeAlertIfNeededQml() before applying
    a choice and emits itemClicked(index).
*/
class VYNUI_EXPORT VynUIComboComponent : public VynUIComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString comboItemTextFormat READ comboItemTextFormat WRITE setComboItemTextFormat
                   NOTIFY comboItemTextFormatChanged)
    Q_PROPERTY(QStringList itemTexts READ itemTexts WRITE setItemTexts NOTIFY itemTextsChanged)
    Q_PROPERTY(QList<int> selectedIndexes READ selectedIndexes WRITE setSelectedIndexes NOTIFY
                   selectedIndexesChanged)
    Q_PROPERTY(QString text READ getText WRITE setText NOTIFY textChanged)
    Q_PROPERTY(bool isMultiple READ isMultiple NOTIFY selectedIndexesChanged)

public:
    explicit VynUIComboComponent(QObject* parent = nullptr);
    ~VynUIComboComponent() override;

    QString comboItemTextFormat() const { return m_comboItemTextFormat; }
    void setComboItemTextFormat(const QString& format);
    QStringList itemTexts() const { return m_itemTexts; }
    void setItemTexts(const QStringList& texts);
    QList<int> itemValues() const { return m_itemValues; }
    void setItemValues(const QList<int>& values);
    QList<int> selectedIndexes() const { return m_selectedIndexes; }
    void setSelectedIndexes(const QList<int>& indexes);
    void setSelectedValues(const QSet<VynRawValue>& values);
    bool isMultiple() const { return m_selectedIndexes.size() > 1; }
    //! The text set explicitly (the null string until one is).
    QString explicitText() const { return m_text; }
    void setText(const QString& text);
    //! The text shown: see the class description.
    QString getText() const;

    Q_INVOKABLE QString toStringValue() override;

signals:
    void comboItemTextFormatChanged();
    void itemTextsChanged();
    void selectedIndexesChanged();
    void textChanged();
    void itemClicked(int p_index);

private:
    QString m_comboItemTextFormat;
    QStringList m_itemTexts;
    QList<int> m_itemValues;
    QList<int> m_selectedIndexes;
    QString m_text = kVynNullString;
};
