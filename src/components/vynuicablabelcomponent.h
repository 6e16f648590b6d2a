#pragma once

#include "vynuiglobal.h"

#include "vynuicomponent.h"

#include <vynmultipartname.h>

#include <QtQml/qqmlregistration.h>

/*!
    The model of a cabinet label: the multi-part name of a loudspeaker
    cabinet, with or without its bridge mark, in the long or the short style.

    setMultiPartName() copies the name and always emits
    multiPartNameChanged(), even for an equal name: the host pushes the name
    to refresh the label. setShowsBridge() and setUsesShortStyle() compare
    first. restoreFromUIComponent() copies the base's state, then, from a
    cabinet label, showsBridge (signal on change only) and usesShortStyle
    (always assigned, shortStyleChanged() always emitted); the name is not
    copied, the host pushes it.

    toStringValue() reads the name's tooltip text with one space as separator.
*/
class VYNUI_EXPORT VynUICabLabelComponent : public VynUIComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool showsBridge READ showsBridge WRITE setShowsBridge NOTIFY showsBridgeChanged)
    Q_PROPERTY(
        bool usesShortStyle READ usesShortStyle WRITE setUsesShortStyle NOTIFY shortStyleChanged)
    Q_PROPERTY(VynMultiPartName multiPartName READ multiPartName NOTIFY multiPartNameChanged)

public:
    explicit VynUICabLabelComponent(QObject* parent = nullptr);
    ~VynUICabLabelComponent() override;

    bool showsBridge() const { return m_showsBridge; }
    void setShowsBridge(bool shows);
    bool usesShortStyle() const { return m_usesShortStyle; }
    void setUsesShortStyle(bool uses);
    VynMultiPartName multiPartName() const { return m_multiPartName; }
    void setMultiPartName(const VynMultiPartName& name);

    void restoreFromUIComponent(VynUIComponent* p_other) override;
    Q_INVOKABLE QString toStringValue() override;

signals:
    void showsBridgeChanged();
    void shortStyleChanged();
    void multiPartNameChanged();

private:
    bool m_showsBridge = true;
    bool m_usesShortStyle = false;
    VynMultiPartName m_multiPartName;
};
