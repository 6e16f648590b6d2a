#include "vynuicombocomponent.h"

#include <qtcommonsconstants.h>
#include <vynlocalizable.h>

#include <QPointer>

VynUIComboComponent::VynUIComboComponent(QObject* parent) : VynUIComponent(parent, true)
{
    setComponentType(VynViewUtils::VynUIComponentTypeCombo);
}

VynUIComboComponent::~VynUIComboComponent() = default;

void VynUIComboComponent::setComboItemTextFormat(const QString& format)
{
    if (format == m_comboItemTextFormat)
        return;
    m_comboItemTextFormat = format;
    emit comboItemTextFormatChanged();
}

void VynUIComboComponent::setItemTexts(const QStringList& texts)
{
    if (texts == m_itemTexts)
        return;
    m_itemTexts = texts;
    // A slot may delete the combo.
    const QPointer<VynUIComboComponent> self(this);
    emit itemTextsChanged();
    if (self)
        emit textChanged();
}

void VynUIComboComponent::setItemValues(const QList<int>& values)
{
    if (values != m_itemValues)
        m_itemValues = values;
}

void VynUIComboComponent::setSelectedIndexes(const QList<int>& indexes)
{
    if (indexes == m_selectedIndexes)
        return;
    m_selectedIndexes = indexes;
    const QPointer<VynUIComboComponent> self(this);
    emit selectedIndexesChanged();
    if (self)
        emit textChanged();
}

void VynUIComboComponent::setSelectedValues(const QSet<VynRawValue>& values)
{
    QList<int> indexes;
    for (int i = 0; i < m_itemValues.size(); ++i) {
        if (values.contains(m_itemValues.at(i)))
            indexes.append(i);
    }
    setSelectedIndexes(indexes);
}

void VynUIComboComponent::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    emit textChanged();
}

QString VynUIComboComponent::getText() const
{
    if (!m_text.isEmpty())
        return m_text;
    if (m_selectedIndexes.size() > 1)
        return QtCommonsConstants::qLocalizedString(QStringLiteral("MULTIPLE"),
                                                    VynLocalizable::kContext);
    if (m_selectedIndexes.size() == 1) {
        const int index = m_selectedIndexes.first();
        if (index >= 0 && index < m_itemTexts.size())
            return m_itemTexts.at(index);
    }
    return QtCommonsConstants::qLocalizedString(QStringLiteral("NO_VALUE"),
                                                VynLocalizable::kContext);
}

QString VynUIComboComponent::toStringValue()
{
    return getText();
}
