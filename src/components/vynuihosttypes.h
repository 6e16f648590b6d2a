#pragma once

#include <qapplicationmessage.h>
#include <qcorewindowcontroller.h>
#include <qtcommonsconstants.h>
#include <vyncommonconstants.h>
#include <vynmultipartname.h>
#include <vyntransformer.h>

#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/*!
    The host-library types the component models hand to QML:
    - VynCommonConstants: the security-type enum, VynCommonConstants.VynSecurityTypeDisable.
    - QtCommonsConstants: the tri-state of the buttons, QtCommonsConstants.VynBOOLMixed.
    - VynMultiPartName: the value type vynMultiPartName of the cabinet labels (series,
      model, preset, ..., tooltipText).
    - QApplicationMessage: the message levels and types, QApplicationMessage.Level_Warn;
      not creatable.
    - VynTransformer and QCoreWindowController: known to QML as property and argument
      types (component.transformer.currentUnit), not creatable.
*/
namespace VynCommonConstantsForeign {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(VynCommonConstants)
QML_NAMED_ELEMENT(VynCommonConstants)
} // namespace VynCommonConstantsForeign

namespace QtCommonsConstantsForeign {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(QtCommonsConstants)
QML_NAMED_ELEMENT(QtCommonsConstants)
} // namespace QtCommonsConstantsForeign

struct VynMultiPartNameForeign
{
    Q_GADGET
    QML_FOREIGN(VynMultiPartName)
    QML_VALUE_TYPE(vynMultiPartName)
};

struct QApplicationMessageForeign
{
    Q_GADGET
    QML_FOREIGN(QApplicationMessage)
    QML_NAMED_ELEMENT(QApplicationMessage)
    QML_UNCREATABLE("QApplicationMessage is created by its presenters")
};

struct VynTransformerForeign
{
    Q_GADGET
    QML_FOREIGN(VynTransformer)
    QML_ANONYMOUS
};

struct QCoreWindowControllerForeign
{
    Q_GADGET
    QML_FOREIGN(QCoreWindowController)
    QML_ANONYMOUS
};
