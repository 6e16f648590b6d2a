#pragma once

#include "vynuiglobal.h"

#include <QQmlEngineExtensionPlugin>

/*!
    The VynUI QML module.

    A host calls initializeTypes() once before loading QML that uses the
    module, onOpeningModule() when it starts using the module and
    onLeavingModule() when it stops. The QML types themselves are registered
    when an engine first imports VynUI.
*/
class VYNUI_EXPORT VynUIPlugin : public QQmlEngineExtensionPlugin
{
    Q_OBJECT

public:
    explicit VynUIPlugin(QObject* parent = nullptr);
    ~VynUIPlugin() override;

    //! Registers the module's value and enum types with the meta-type system, each also under
    //! its short name ("VynSide" as well as "VynViewUtils::VynSide").
    static void initializeTypes();

public slots:
    //! Opens VynCommon and registers the "VynUILocalizable" table with QtCommons.
    void onOpeningModule();
    //! Leaves VynCommon; the localisation table stays registered.
    void onLeavingModule();
};
