#include "qtcommonstitlebar.h"

#include <QHash>

namespace {

QHash<quintptr, QtCommons::TitlebarAppearance>& requests()
{
    static QHash<quintptr, QtCommons::TitlebarAppearance> s_requests;
    return s_requests;
}

void request(quintptr windowId, QtCommons::TitlebarAppearance appearance)
{
    if (windowId == 0)
        return;
    // Linux window managers draw the decoration themselves and take no per-window
    // request through a portable interface; the request is recorded only.
    requests().insert(windowId, appearance);
}

} // namespace

namespace QtCommons {

void setDarkTitlebar(quintptr windowId)
{
    request(windowId, TitlebarAppearance::Dark);
}

void setLightTitlebar(quintptr windowId)
{
    request(windowId, TitlebarAppearance::Light);
}

TitlebarAppearance titlebarAppearance(quintptr windowId)
{
    return requests().value(windowId, TitlebarAppearance::Default);
}

} // namespace QtCommons
