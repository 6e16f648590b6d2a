#include "gallerylayoutcheck.h"

#include <QQuickItem>
#include <QQuickWindow>

#include <vector>

namespace {

// Less than a pixel of contact is rounding, not overlap.
constexpr double kTolerance = 1.0;

bool isContainer(const QQuickItem* item)
{
    return item->inherits("QQuickPane") || item->inherits("QQuickScrollView") ||
           item->inherits("QQuickPage") || item->inherits("QQuickContainer");
}

// Scroll bars and indicators lie over the content by design.
bool isOverlay(const QQuickItem* item)
{
    return item->inherits("QQuickScrollBar") || item->inherits("QQuickScrollIndicator");
}

bool isControl(const QQuickItem* item)
{
    if (isContainer(item))
        return false;
    if (item->inherits("QQuickControl") || item->inherits("QQuickText") ||
        item->inherits("QQuickTextInput"))
        return true;
    // QML types of the module (VynSlider12_QMLTYPE_3 and the like); a gallery type built on
    // one of them (LabelledBar on VynItem) is a composition and is looked into.
    return qstrncmp(item->metaObject()->className(), "Vyn", 3) == 0;
}

bool isShown(const QQuickItem* item)
{
    if (!item->isVisible() || item->opacity() <= 0.0)
        return false;
    // A text squeezed to nothing still paints its text.
    if (item->inherits("QQuickText") && !item->property("text").toString().isEmpty())
        return true;
    // A control squeezed to nothing is shown, and reported as squeezed.
    return (item->width() > 0.0 && item->height() > 0.0) || item->implicitWidth() > 0.0;
}

// A control given less than half of the room it asks for (a wrapping text asks for a line
// it does not need).
bool isSqueezed(const QQuickItem* item)
{
    const bool wraps = item->property("wrapMode").toInt() != 0;
    return (!wraps && item->width() < item->implicitWidth() / 2) ||
           item->height() < item->implicitHeight() / 2;
}

void collect(QQuickItem* item, std::vector<QQuickItem*>& controls)
{
    for (QQuickItem* child : item->childItems()) {
        if (!child->isVisible() || child->opacity() <= 0.0 || isOverlay(child))
            continue;
        if (isControl(child)) {
            if (isShown(child))
                controls.push_back(child);
        } else {
            collect(child, controls);
        }
    }
}

QString describe(const QQuickItem* item)
{
    QString name = QString::fromLatin1(item->metaObject()->className());
    name = name.section(QLatin1Char('_'), 0, 0);
    const QVariant text = item->property("text");
    if (text.isValid() && !text.toString().isEmpty())
        name += QStringLiteral(" \"%1\"").arg(text.toString().left(24));
    else if (!item->objectName().isEmpty())
        name += QStringLiteral(" (%1)").arg(item->objectName());
    const QRectF r = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    return name + QStringLiteral(" at %1,%2 %3x%4 (implicit %5x%6)")
                      .arg(r.x(), 0, 'f', 0)
                      .arg(r.y(), 0, 'f', 0)
                      .arg(r.width(), 0, 'f', 0)
                      .arg(r.height(), 0, 'f', 0)
                      .arg(item->implicitWidth(), 0, 'f', 0)
                      .arg(item->implicitHeight(), 0, 'f', 0);
}

bool within(const QRectF& inner, const QRectF& outer)
{
    return inner.left() >= outer.left() - kTolerance && inner.top() >= outer.top() - kTolerance &&
           inner.right() <= outer.right() + kTolerance &&
           inner.bottom() <= outer.bottom() + kTolerance;
}

// Where the control can be seen at all: inside every clipping ancestor and inside the content
// of its nearest Flickable (or the window). Empty when it is fine.
QString outsideFault(QQuickItem* control)
{
    const QRectF rect = control->mapRectToScene(QRectF(0, 0, control->width(), control->height()));
    const QQuickItem* previous = control;
    for (QQuickItem* ancestor = control->parentItem(); ancestor;
         previous = ancestor, ancestor = ancestor->parentItem()) {
        // Scrolled content is reached through the Flickable's content item; its scroll bars
        // are children of the Flickable itself and must fit in its frame.
        QQuickItem* content = ancestor->inherits("QQuickFlickable")
                                  ? ancestor->property("contentItem").value<QQuickItem*>()
                                  : nullptr;
        if (content && previous == content) {
            const QRectF area(0, 0, ancestor->property("contentWidth").toDouble(),
                              ancestor->property("contentHeight").toDouble());
            if (!within(content->mapRectFromScene(rect), area))
                return QStringLiteral("outside its scrollable area");
            return QString();
        }
        if (ancestor->clip() && !within(rect, ancestor->mapRectToScene(QRectF(
                                                  0, 0, ancestor->width(), ancestor->height()))))
            return QStringLiteral("cut off by a clipping ancestor");
    }
    const QQuickWindow* window = control->window();
    if (window && !within(rect, QRectF(0, 0, window->width(), window->height())))
        return QStringLiteral("outside the window");
    return QString();
}

} // namespace

QStringList GalleryLayoutCheck::faults(QQuickItem* root)
{
    QStringList found;
    if (!root)
        return found;
    std::vector<QQuickItem*> controls;
    collect(root, controls);
    std::vector<QRectF> rects;
    rects.reserve(controls.size());
    for (QQuickItem* control : controls)
        rects.push_back(control->mapRectToScene(QRectF(0, 0, control->width(), control->height())));

    for (size_t i = 0; i < controls.size(); ++i) {
        for (size_t j = i + 1; j < controls.size(); ++j) {
            const QRectF overlap = rects[i].intersected(rects[j]);
            if (overlap.width() >= kTolerance && overlap.height() >= kTolerance)
                found << QStringLiteral("overlap: %1 and %2")
                             .arg(describe(controls[i]), describe(controls[j]));
        }
        if (isSqueezed(controls[i]))
            found << QStringLiteral("squeezed below half its implicit size: %1")
                         .arg(describe(controls[i]));
        const QString outside = outsideFault(controls[i]);
        if (!outside.isEmpty())
            found << QStringLiteral("%1: %2").arg(outside, describe(controls[i]));
    }
    return found;
}
