#pragma once

#include <qapplicationmessage.h>
#include <qcorewindowcontroller.h>
#include <vyncommonconstants.h>
#include <vyntransformer.h>

#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/*!
    The host-library types the component models hand to QML:
    - VynCommonConstants: the security-type enum, VynCommonConstants.VynSecurityTypeDisable.
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
