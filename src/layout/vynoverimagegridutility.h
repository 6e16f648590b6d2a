#pragma once

#include "vynuiglobal.h"
#include "vynviewutils.h"

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

/*!
    The model of the overlay drawn over a magnet cell while it is edited: its
    thirds grid, its resize handles and the translation of a handle into
    resize settings.

    A gesture runs beginResizingForAnchor(), any number of
    resizeWithTranslation() and endResizing(). Each translation is taken
    relative to firstFrame, the cell's frame at the start of the gesture, and
    becomes one VynResizeSettings record handed on through
    isResizingWithSettings(); the owning cell applies it.

    - Proportional (isProportional, or Shift held): the dragged corner is
      projected on the diagonal through the anchor; both factors are the
      square root (in single precision) of the squared length ratio, never
      negative. The centre anchor has no diagonal: its factors are NaN.
    - Free: each sizable axis whose handle is not the middle one follows the
      translation (mirrored for the left and top handles) but never below
      the factor that keeps minimumSize.
    - Alt resizes about the centre: the settings carry the centre anchor and
      isCentered.

    The host decides what may be resized (setWidthIsSizable(),
    setHeightIsSizable(), setMinimumSize()) and when the grid and handles
    show. zoomScale never drops below 0.1 and every write is signalled;
    a zoom or a translation that is not a number is refused with one log
    line.
*/
class VYNUI_EXPORT VynOverImageGridUtility : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A grid utility belongs to its magnet cell")
    Q_PROPERTY(double zoomScale READ zoomScale WRITE setZoomScale NOTIFY zoomScaleChanged)
    Q_PROPERTY(bool widthIsSizable READ widthIsSizable NOTIFY widthIsSizableChanged)
    Q_PROPERTY(bool heightIsSizable READ heightIsSizable NOTIFY heightIsSizableChanged)
    Q_PROPERTY(bool isProportional READ isProportional WRITE setIsProportional NOTIFY
                   isProportionalChanged)
    Q_PROPERTY(QRectF firstFrame READ firstFrame NOTIFY firstFrameChanged)
    Q_PROPERTY(bool showsGrid READ showsGrid NOTIFY showsGridChanged)
    Q_PROPERTY(bool showsAnchors READ showsAnchors NOTIFY showsAnchorsChanged)
    Q_PROPERTY(bool isResizing READ isResizing NOTIFY isResizingChanged)

public:
    //! The smallest zoom scale.
    static constexpr double kMinimumZoomScale = 0.1;

    explicit VynOverImageGridUtility(QObject* parent = nullptr);
    ~VynOverImageGridUtility() override;

    double zoomScale() const { return m_zoomScale; }
    //! Stores max(0.1, \a scale) and always emits zoomScaleChanged().
    void setZoomScale(double scale);

    bool widthIsSizable() const { return m_widthIsSizable; }
    void setWidthIsSizable(bool sizable);
    bool heightIsSizable() const { return m_heightIsSizable; }
    void setHeightIsSizable(bool sizable);
    bool isProportional() const { return m_isProportional; }
    void setIsProportional(bool proportional);

    //! The smallest size a resize may produce; (10, 10) by default.
    QSizeF minimumSize() const { return m_minimumSize; }
    void setMinimumSize(const QSizeF& size);

    QRectF firstFrame() const { return m_firstFrame; }
    //! Stores \a frame and always emits firstFrameChanged().
    void setFirstFrame(const QRectF& frame);

    bool showsGrid() const { return m_showsGrid; }
    void setShowsGrid(bool shows);
    //! As setShowsGrid(); \a animated is accepted for hosts that animate and has no effect.
    void setShowsGridAnimated(bool shows, bool animated);
    bool showsAnchors() const { return m_showsAnchors; }
    void setShowsAnchors(bool shows);

    bool isResizing() const { return m_isResizing; }
    VynViewUtils::VynResizeAnchor anchor() const { return m_anchor; }

    //! The settings that resizeWithTranslation() hands on for these arguments.
    VynViewUtils::VynResizeSettings
    settingsForTranslation(const QSizeF& translation, bool altIsPressed, bool shiftIsPressed) const;

    Q_INVOKABLE void beginResizingForAnchor(VynViewUtils::VynResizeAnchor p_anchor);
    Q_INVOKABLE void resizeWithTranslation(QSizeF p_translation, bool p_altIsPressed,
                                           bool p_shiftIsPressed, bool p_controlIsPressed);
    Q_INVOKABLE void endResizing();

signals:
    void styleChanged();
    void zoomScaleChanged();
    void firstFrameChanged();
    void widthIsSizableChanged();
    void heightIsSizableChanged();
    void isProportionalChanged();
    void showsGridChanged();
    void showsAnchorsChanged();
    //! Asks the owning cell to copy its frame into firstFrame.
    void geometryUpdateRequested();
    void isResizingChanged();
    void isResizingWithSettings(VynViewUtils::VynResizeSettings& p_settings,
                                bool p_controlIsPressed, bool p_shiftIsPressed);
    void didEndResizing();

private:
    void logRefusal(const QString& message, const char* function) const;

    double m_zoomScale = 1.0;
    bool m_widthIsSizable = true;
    bool m_heightIsSizable = true;
    bool m_isProportional = false;
    QSizeF m_minimumSize{10.0, 10.0};
    QRectF m_firstFrame;
    VynViewUtils::VynResizeAnchor m_anchor = VynViewUtils::VynResizeAnchorTopLeft;
    bool m_isResizing = false;
    bool m_showsGrid = false;
    bool m_showsAnchors = false;
};
