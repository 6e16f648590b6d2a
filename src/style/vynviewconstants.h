#pragma once

#include "vynuiglobal.h"

#include <QObject>

/*!
    Namespace of the view constants. It carries a static meta-object only, so
    that tools and hosts can look it up by name; it offers nothing to QML. The
    metrics themselves live in VynUIQmlConstants.
*/
namespace VynViewConstants {
Q_NAMESPACE_EXPORT(VYNUI_EXPORT)
} // namespace VynViewConstants
