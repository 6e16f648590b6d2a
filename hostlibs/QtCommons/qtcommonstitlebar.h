#pragma once

#include "qtcommonsglobal.h"

#include <QtGlobal>

/*!
    Native title-bar colouring.

    A window's title bar is drawn by the platform; these calls ask it for the
    dark or the light appearance for the native window handle \a windowId
    (a WId). A null handle is ignored. On platforms that offer no control over
    the title bar the request is only remembered, so that
    titlebarAppearance() tells what was last asked for a window.
*/
namespace QtCommons {

enum class TitlebarAppearance { Default = 0, Light = 1, Dark = 2 };

QTCOMMONS_EXPORT void setDarkTitlebar(quintptr windowId);
QTCOMMONS_EXPORT void setLightTitlebar(quintptr windowId);

//! The appearance last asked for \a windowId; Default when none was.
QTCOMMONS_EXPORT TitlebarAppearance titlebarAppearance(quintptr windowId);

} // namespace QtCommons
