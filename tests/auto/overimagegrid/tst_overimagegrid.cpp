#include "vynoverimagegridutility.h"

#include "../common/signalrecorder.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace VynViewUtils;

namespace {

class Recorder : public SignalRecorder
{
public:
    explicit Recorder(VynOverImageGridUtility* g)
    {
        using G = VynOverImageGridUtility;
        watch(g, &G::zoomScaleChanged, "zoomScale");
        watch(g, &G::firstFrameChanged, "firstFrame");
        watch(g, &G::widthIsSizableChanged, "widthIsSizable");
        watch(g, &G::heightIsSizableChanged, "heightIsSizable");
        watch(g, &G::isProportionalChanged, "isProportional");
        watch(g, &G::showsGridChanged, "showsGrid");
        watch(g, &G::showsAnchorsChanged, "showsAnchors");
        watch(g, &G::geometryUpdateRequested, "geometryUpdateRequested");
        watch(g, &G::isResizingChanged, "isResizing");
        watch(g, &G::didEndResizing, "didEndResizing");
        keep(QObject::connect(
            g, &G::isResizingWithSettings, [this](VynResizeSettings&, bool control, bool shift) {
                record(QStringLiteral("isResizingWithSettings(%1,%2)").arg(control).arg(shift));
            }));
    }
};

// A gesture on a fresh utility over \a frame: begin at \a anchor, one translation, the
// settings it handed on.
VynResizeSettings resize(const QRectF& frame, VynResizeAnchor anchor, QSizeF translation,
                         bool alt = false, bool shift = false, bool proportional = false)
{
    VynOverImageGridUtility g;
    g.setFirstFrame(frame);
    g.setIsProportional(proportional);
    g.beginResizingForAnchor(anchor);
    VynResizeSettings out;
    out.widthFactor = -1;
    QObject::connect(&g, &VynOverImageGridUtility::isResizingWithSettings,
                     [&out](VynResizeSettings& s, bool, bool) { out = s; });
    g.resizeWithTranslation(translation, alt, shift, false);
    return out;
}

} // namespace

class tst_OverImageGrid : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void zoomScale_data();
    void zoomScale();
    void gestureSignalsInOrder();
    void setterSignalsOnlyOnChange();
    void freeResize_data();
    void freeResize();
    void proportionalResize_data();
    void proportionalResize();
    void centreAnchorIsNotANumber();
    void altResizesAboutTheCentre();
    void settingsCarryTheSizability();
    void refusesTranslationThatIsNotANumber();
    void signalReachesQmlAsValue();
};

void tst_OverImageGrid::defaults()
{
    VynOverImageGridUtility g;
    QCOMPARE(g.zoomScale(), 1.0);
    QVERIFY(g.widthIsSizable());
    QVERIFY(g.heightIsSizable());
    QVERIFY(!g.isProportional());
    QCOMPARE(g.minimumSize(), QSizeF(10, 10));
    QVERIFY(!g.isResizing());
    QVERIFY(!g.showsGrid());
    QVERIFY(!g.showsAnchors());
}

void tst_OverImageGrid::zoomScale_data()
{
    QTest::addColumn<double>("written");
    QTest::addColumn<double>("stored");
    QTest::addColumn<int>("emitted");
    QTest::newRow("below the floor") << 0.05 << 0.1 << 1;
    QTest::newRow("negative") << -3.0 << 0.1 << 1;
    QTest::newRow("minus infinity") << -std::numeric_limits<double>::infinity() << 0.1 << 1;
    QTest::newRow("unchanged is still signalled") << 1.0 << 1.0 << 1;
    QTest::newRow("zoomed in") << 4.0 << 4.0 << 1;
    QTest::newRow("not a number is refused")
        << std::numeric_limits<double>::quiet_NaN() << 1.0 << 0;
    QTest::newRow("infinity is refused") << std::numeric_limits<double>::infinity() << 1.0 << 0;
}

void tst_OverImageGrid::zoomScale()
{
    QFETCH(double, written);
    QFETCH(double, stored);
    QFETCH(int, emitted);
    VynOverImageGridUtility g;
    QSignalSpy spy(&g, &VynOverImageGridUtility::zoomScaleChanged);
    if (std::isnan(written) || (std::isinf(written) && written > 0))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("zoom scale"));
    g.setProperty("zoomScale", written);
    QCOMPARE(g.zoomScale(), stored);
    QCOMPARE(spy.count(), emitted);
}

void tst_OverImageGrid::gestureSignalsInOrder()
{
    VynOverImageGridUtility g;
    Recorder r(&g);
    g.beginResizingForAnchor(VynResizeAnchorBottomRight);
    QVERIFY(g.isResizing());
    QCOMPARE(g.anchor(), VynResizeAnchorBottomRight);
    QCOMPARE(r.take(), QStringList({"isResizing", "geometryUpdateRequested"}));
    g.resizeWithTranslation(QSizeF(3, 4), false, true, true);
    g.resizeWithTranslation(QSizeF(5, 4), false, false, false);
    QCOMPARE(r.take(), QStringList({"isResizingWithSettings(1,1)", "isResizingWithSettings(0,0)"}));
    g.endResizing();
    QVERIFY(!g.isResizing());
    QCOMPARE(r.take(), QStringList({"isResizing", "didEndResizing"}));
    // The first frame is always signalled, even unchanged.
    g.setFirstFrame(QRectF());
    g.setFirstFrame(QRectF());
    QCOMPARE(r.take(), QStringList({"firstFrame", "firstFrame"}));
}

void tst_OverImageGrid::setterSignalsOnlyOnChange()
{
    VynOverImageGridUtility g;
    Recorder r(&g);
    g.setWidthIsSizable(true);
    g.setHeightIsSizable(true);
    g.setIsProportional(false);
    g.setShowsGrid(false);
    g.setShowsAnchors(false);
    QCOMPARE(r.take(), QStringList());
    g.setWidthIsSizable(false);
    g.setHeightIsSizable(false);
    g.setIsProportional(true);
    g.setShowsGridAnimated(true, true);
    g.setShowsAnchors(true);
    g.setShowsGrid(true);
    QCOMPARE(r.take(), QStringList({"widthIsSizable", "heightIsSizable", "isProportional",
                                    "showsGrid", "showsAnchors"}));
}

void tst_OverImageGrid::freeResize_data()
{
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QSizeF>("translation");
    QTest::addColumn<double>("widthFactor");
    QTest::addColumn<double>("heightFactor");
    const QRectF f(10, 20, 100, 50);
    QTest::newRow("right middle handle grows")
        << f << int(VynResizeAnchorMiddleLeft) << QSizeF(20, 30) << 1.2 << 1.0;
    QTest::newRow("left middle handle shrinks")
        << f << int(VynResizeAnchorMiddleRight) << QSizeF(20, 30) << 0.8 << 1.0;
    QTest::newRow("bottom middle handle")
        << f << int(VynResizeAnchorTopMiddle) << QSizeF(40, 10) << 1.0 << 1.2;
    QTest::newRow("top middle handle")
        << f << int(VynResizeAnchorBottomMiddle) << QSizeF(40, 10) << 1.0 << 0.8;
    QTest::newRow("bottom right corner")
        << f << int(VynResizeAnchorTopLeft) << QSizeF(-50, 25) << 0.5 << 1.5;
    QTest::newRow("top left corner")
        << f << int(VynResizeAnchorBottomRight) << QSizeF(-50, 25) << 1.5 << 0.5;
    QTest::newRow("minimum width wins")
        << f << int(VynResizeAnchorMiddleLeft) << QSizeF(-95, 0) << 0.1 << 1.0;
    QTest::newRow("minimum height wins, past the anchor")
        << f << int(VynResizeAnchorTopLeft) << QSizeF(0, -200) << 1.0 << 0.2;
}

void tst_OverImageGrid::freeResize()
{
    QFETCH(QRectF, frame);
    QFETCH(int, anchor);
    QFETCH(QSizeF, translation);
    QFETCH(double, widthFactor);
    QFETCH(double, heightFactor);
    const VynResizeSettings s = resize(frame, VynResizeAnchor(anchor), translation);
    QCOMPARE(s.widthFactor, widthFactor);
    QCOMPARE(s.heightFactor, heightFactor);
    QCOMPARE(s.anchor, VynResizeAnchor(anchor));
    QVERIFY(!s.isCentered);
    QVERIFY(!s.isProportional);
}

void tst_OverImageGrid::proportionalResize_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QSizeF>("translation");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<double>("factor");
    // Frame 100 x 50: the diagonal from the anchor is (100, 50) long.
    QTest::newRow("along the diagonal")
        << int(VynResizeAnchorTopLeft) << QSizeF(50, 25) << false << 1.5;
    QTest::newRow("across the diagonal keeps the factor")
        << int(VynResizeAnchorTopLeft) << QSizeF(10, -20) << false << 1.0;
    QTest::newRow("Shift makes it proportional")
        << int(VynResizeAnchorTopLeft) << QSizeF(-50, -25) << true << 0.5;
    QTest::newRow("past the anchor grows again")
        << int(VynResizeAnchorTopLeft) << QSizeF(-150, -75) << false << 0.5;
    QTest::newRow("top left handle")
        << int(VynResizeAnchorBottomRight) << QSizeF(-100, -50) << false << 2.0;
    QTest::newRow("right middle handle, horizontal diagonal")
        << int(VynResizeAnchorMiddleLeft) << QSizeF(50, 33) << false << 1.5;
    QTest::newRow("bottom middle handle, vertical diagonal")
        << int(VynResizeAnchorTopMiddle) << QSizeF(70, 25) << false << 1.5;
    // Single-precision square root: 1.21 is not exact in binary.
    QTest::newRow("square root in single precision")
        << int(VynResizeAnchorTopLeft) << QSizeF(10, 5) << false << double(std::sqrt(1.21f));
}

void tst_OverImageGrid::proportionalResize()
{
    QFETCH(int, anchor);
    QFETCH(QSizeF, translation);
    QFETCH(bool, shift);
    QFETCH(double, factor);
    const VynResizeSettings s =
        resize(QRectF(0, 0, 100, 50), VynResizeAnchor(anchor), translation, false, shift, !shift);
    QCOMPARE(s.widthFactor, factor);
    QCOMPARE(s.heightFactor, factor);
}

void tst_OverImageGrid::centreAnchorIsNotANumber()
{
    const VynResizeSettings s =
        resize(QRectF(0, 0, 100, 50), VynResizeAnchorCenter, QSizeF(10, 10), false, true);
    QVERIFY(std::isnan(s.widthFactor));
    QVERIFY(std::isnan(s.heightFactor));
}

void tst_OverImageGrid::altResizesAboutTheCentre()
{
    const VynResizeSettings s =
        resize(QRectF(0, 0, 100, 50), VynResizeAnchorMiddleLeft, QSizeF(20, 0), true);
    QCOMPARE(s.anchor, VynResizeAnchorCenter);
    QVERIFY(s.isCentered);
    // The factor still comes from the grabbed handle.
    QCOMPARE(s.widthFactor, 1.2);
}

void tst_OverImageGrid::settingsCarryTheSizability()
{
    VynOverImageGridUtility g;
    g.setFirstFrame(QRectF(0, 0, 100, 50));
    g.setWidthIsSizable(false);
    g.beginResizingForAnchor(VynResizeAnchorTopLeft);
    const VynResizeSettings s = g.settingsForTranslation(QSizeF(20, 10), false, false);
    QCOMPARE(s.widthFactor, 1.0);
    QCOMPARE(s.heightFactor, 1.2);
    QVERIFY(!s.widthIsSizable);
    QVERIFY(s.heightIsSizable);
}

void tst_OverImageGrid::refusesTranslationThatIsNotANumber()
{
    VynOverImageGridUtility g;
    g.setFirstFrame(QRectF(0, 0, 100, 50));
    g.beginResizingForAnchor(VynResizeAnchorTopLeft);
    QSignalSpy spy(&g, &VynOverImageGridUtility::isResizingWithSettings);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("translation that is not a number"));
    g.resizeWithTranslation(QSizeF(std::numeric_limits<double>::quiet_NaN(), 1), false, false,
                            false);
    QCOMPARE(spy.count(), 0);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("anchor 3"));
    g.beginResizingForAnchor(VynResizeAnchor(3));
    QCOMPARE(g.anchor(), VynResizeAnchorTopLeft);
}

void tst_OverImageGrid::signalReachesQmlAsValue()
{
    // The settings travel by reference; the meta-object describes them by their value type
    // so that QML and queued hosts can still read them.
    const QMetaObject& mo = VynOverImageGridUtility::staticMetaObject;
    const int index =
        mo.indexOfSignal("isResizingWithSettings(VynViewUtils::VynResizeSettings&,bool,bool)");
    QVERIFY(index >= 0);
    QCOMPARE(mo.method(index).parameterMetaType(0),
             QMetaType::fromType<VynViewUtils::VynResizeSettings>());
}

QTEST_GUILESS_MAIN(tst_OverImageGrid)
#include "tst_overimagegrid.moc"
