#pragma once

#include <QStringList>

class QQuickItem;

/*!
    Finds layout faults in a page of the gallery as a user would see them.

    A control is a visible item with an area that is a Qt Quick Controls control (not a
    container: panes, frames, group boxes, scroll views and pages are looked into), a text
    (Text, Label) or one of the module's controls (its QML types are named Vyn...). A control
    is not looked into: its own parts may overlap. Scroll bars lie over the content by design
    and are left out.

    Faults: two controls whose rectangles overlap by at least a pixel in both directions
    ("overlap"), a control given less than half of its implicit width or height ("squeezed";
    a wrapping text only by its height), and a control that reaches past a clipping ancestor
    or past the area it can be scrolled to, the content of its nearest Flickable or else the
    window ("outside").
*/
class GalleryLayoutCheck
{
public:
    //! The faults of the items under \a root, one line each.
    static QStringList faults(QQuickItem* root);
};
