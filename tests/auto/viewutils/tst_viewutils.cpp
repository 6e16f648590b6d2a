#include <vynviewutils.h>

#include <vynuiplugin.h>

#include <QtTest>

#include <cfloat>
#include <limits>

using namespace VynViewUtils;

Q_DECLARE_METATYPE(Qt::Orientation)

class TestViewUtils : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void sideOpposite_data();
    void sideOpposite();
    void sideOrientation_data();
    void sideOrientation();
    void orientationOther();
    void cornersForSides_data();
    void cornersForSides();
    void alignmentForSide_data();
    void alignmentForSide();
    void alignmentForAnchor_data();
    void alignmentForAnchor();

    void sideBoundsAndSizes();
    void orthogonalDimension_data();
    void orthogonalDimension();
    void setOrthogonalDimension_data();
    void setOrthogonalDimension();
    void setSizeAlongOrientation();
    void lineRect_data();
    void lineRect();
    void pointAlongSide_data();
    void pointAlongSide();

    void strictIntersection_data();
    void strictIntersection();
    void largeContainment_data();
    void largeContainment();

    void resizedWithAnchor_data();
    void resizedWithAnchor();
    void maxResizeFactors_data();
    void maxResizeFactors();
    void minResizeFactors();
    void alignedOnGrid_data();
    void alignedOnGrid();
    void rounded_data();
    void rounded();
    void fitted_data();
    void fitted();

    void recordMakers();
    void recordsInVariants();
};

void TestViewUtils::initTestCase()
{
    VynUIPlugin::initializeTypes();
    VynUIPlugin plugin;
    plugin.onOpeningModule();
}

void TestViewUtils::sideOpposite_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("expected");
    QTest::newRow("left") << int(VynSideLeft) << int(VynSideRight);
    QTest::newRow("right") << int(VynSideRight) << int(VynSideLeft);
    QTest::newRow("top") << int(VynSideTop) << int(VynSideBottom);
    QTest::newRow("bottom") << int(VynSideBottom) << int(VynSideTop);
    QTest::newRow("none unchanged") << int(VynSideNone) << int(VynSideNone);
    QTest::newRow("all unchanged") << int(VynSideAll) << int(VynSideAll);
    QTest::newRow("horizontal centre unchanged")
        << int(VynSideHorizontalCenter) << int(VynSideHorizontalCenter);
    QTest::newRow("vertical centre unchanged")
        << int(VynSideVerticalCenter) << int(VynSideVerticalCenter);
    QTest::newRow("unknown unchanged") << 5 << 5;
}

void TestViewUtils::sideOpposite()
{
    QFETCH(int, side);
    QFETCH(int, expected);
    QCOMPARE(int(vynSideOpposite(VynSide(side))), expected);
}

void TestViewUtils::sideOrientation_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<Qt::Orientation>("expected");
    QTest::newRow("left") << int(VynSideLeft) << Qt::Vertical;
    QTest::newRow("right") << int(VynSideRight) << Qt::Vertical;
    QTest::newRow("horizontal centre") << int(VynSideHorizontalCenter) << Qt::Vertical;
    QTest::newRow("top") << int(VynSideTop) << Qt::Horizontal;
    QTest::newRow("bottom") << int(VynSideBottom) << Qt::Horizontal;
    QTest::newRow("vertical centre") << int(VynSideVerticalCenter) << Qt::Horizontal;
    QTest::newRow("none") << int(VynSideNone) << Qt::Horizontal;
    QTest::newRow("all") << int(VynSideAll) << Qt::Horizontal;
    QTest::newRow("above 16") << 64 << Qt::Horizontal;
}

void TestViewUtils::sideOrientation()
{
    QFETCH(int, side);
    QFETCH(Qt::Orientation, expected);
    QCOMPARE(vynSideOrientation(VynSide(side)), expected);
}

void TestViewUtils::orientationOther()
{
    QCOMPARE(vynOrientationOther(Qt::Vertical), Qt::Horizontal);
    QCOMPARE(vynOrientationOther(Qt::Horizontal), Qt::Vertical);
    QCOMPARE(vynOrientationOther(Qt::Orientation(0)), Qt::Vertical);
    QCOMPARE(vynOrientationOther(Qt::Orientation(3)), Qt::Vertical);
}

void TestViewUtils::cornersForSides_data()
{
    QTest::addColumn<int>("sides");
    QTest::addColumn<int>("expected");
    QTest::newRow("single edge") << int(VynSideLeft) << int(VynCornerNone);
    QTest::newRow("left+top") << int(VynSideLeft | VynSideTop) << int(VynCornerTopLeft);
    QTest::newRow("top+right") << int(VynSideTop | VynSideRight) << int(VynCornerTopRight);
    QTest::newRow("left+bottom") << int(VynSideLeft | VynSideBottom) << int(VynCornerBottomLeft);
    QTest::newRow("right+bottom") << int(VynSideRight | VynSideBottom) << int(VynCornerBottomRight);
    QTest::newRow("left+right") << int(VynSideLeft | VynSideRight) << int(VynCornerNone);
    QTest::newRow("three edges") << int(VynSideLeft | VynSideTop | VynSideRight)
                                 << int(VynCornerTopLeft | VynCornerTopRight);
    QTest::newRow("all") << int(VynSideAll) << int(VynCornerAllCorners);
    QTest::newRow("centre bits ignored")
        << int(VynSideLeft | VynSideTop | VynSideHorizontalCenter | VynSideVerticalCenter)
        << int(VynCornerTopLeft);
}

void TestViewUtils::cornersForSides()
{
    QFETCH(int, sides);
    QFETCH(int, expected);
    QCOMPARE(int(vynCornersForSides(VynSide(sides))), expected);
}

void TestViewUtils::alignmentForSide_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("expected");
    QTest::newRow("left") << int(VynSideLeft) << 0;
    QTest::newRow("top") << int(VynSideTop) << 0;
    QTest::newRow("horizontal centre") << int(VynSideHorizontalCenter) << 1;
    QTest::newRow("vertical centre") << int(VynSideVerticalCenter) << 1;
    QTest::newRow("right") << int(VynSideRight) << 2;
    QTest::newRow("bottom") << int(VynSideBottom) << 2;
    QTest::newRow("none is 2, not 0") << int(VynSideNone) << 2;
    QTest::newRow("all") << int(VynSideAll) << 2;
}

void TestViewUtils::alignmentForSide()
{
    QFETCH(int, side);
    QFETCH(int, expected);
    QCOMPARE(vynAlignmentForSide(VynSide(side)), expected);
}

void TestViewUtils::alignmentForAnchor_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<int>("alongVertical");
    QTest::addColumn<int>("alongHorizontal");
    QTest::newRow("top left") << int(VynResizeAnchorTopLeft) << 0 << 0;
    QTest::newRow("top right") << int(VynResizeAnchorTopRight) << 2 << 0;
    QTest::newRow("middle left") << int(VynResizeAnchorMiddleLeft) << 0 << 1;
    QTest::newRow("centre") << int(VynResizeAnchorCenter) << 1 << 1;
    QTest::newRow("bottom middle") << int(VynResizeAnchorBottomMiddle) << 1 << 2;
    QTest::newRow("bottom right") << int(VynResizeAnchorBottomRight) << 2 << 2;
}

void TestViewUtils::alignmentForAnchor()
{
    QFETCH(int, anchor);
    QFETCH(int, alongVertical);
    QFETCH(int, alongHorizontal);
    // A vertical line is placed by the anchor's horizontal position, and the other way round.
    QCOMPARE(vynAlignmentForAnchorAlongOrientation(VynResizeAnchor(anchor), Qt::Vertical),
             alongVertical);
    QCOMPARE(vynAlignmentForAnchorAlongOrientation(VynResizeAnchor(anchor), Qt::Horizontal),
             alongHorizontal);
}

void TestViewUtils::sideBoundsAndSizes()
{
    const QRectF rect(10, 20, 30, 40);
    const VynSideBounds horizontal = vynSideBoundsForRect(rect, Qt::Horizontal);
    QCOMPARE(horizontal.min, 10.0);
    QCOMPARE(horizontal.max, 40.0);
    const VynSideBounds vertical = vynSideBoundsForRect(rect, Qt::Vertical);
    QCOMPARE(vertical.min, 20.0);
    QCOMPARE(vertical.max, 60.0);
    QCOMPARE(vynSideBoundsForRect(rect, Qt::Orientation(0)), vertical);
    QCOMPARE(vynSideBoundsMake(-1, 3).max, 3.0);

    QCOMPARE(qRectFSizeAlongOrientation(rect, Qt::Vertical), 40.0);
    QCOMPARE(qRectFSizeAlongOrientation(rect, Qt::Horizontal), 30.0);
    QCOMPARE(qRectFSizeAlongOrientation(rect, Qt::Orientation(0)), 30.0);
}

void TestViewUtils::orthogonalDimension_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<double>("expected");
    QTest::newRow("left") << int(VynSideLeft) << 10.0;
    QTest::newRow("top") << int(VynSideTop) << 20.0;
    QTest::newRow("right") << int(VynSideRight) << 40.0;
    QTest::newRow("bottom") << int(VynSideBottom) << 60.0;
    QTest::newRow("vertical centre") << int(VynSideVerticalCenter) << 40.0;
    QTest::newRow("horizontal centre") << int(VynSideHorizontalCenter) << 25.0;
    QTest::newRow("none gives x + w/2") << int(VynSideNone) << 25.0;
    QTest::newRow("all gives x + w/2") << int(VynSideAll) << 25.0;
}

void TestViewUtils::orthogonalDimension()
{
    QFETCH(int, side);
    QFETCH(double, expected);
    QCOMPARE(qRectFOrthogonalDimensionForSide(QRectF(10, 20, 30, 40), VynSide(side)), expected);
}

void TestViewUtils::setOrthogonalDimension_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("left") << int(VynSideLeft) << QRectF(100, 20, 30, 40);
    QTest::newRow("top") << int(VynSideTop) << QRectF(10, 100, 30, 40);
    QTest::newRow("right") << int(VynSideRight) << QRectF(70, 20, 30, 40);
    QTest::newRow("bottom") << int(VynSideBottom) << QRectF(10, 60, 30, 40);
    QTest::newRow("horizontal centre") << int(VynSideHorizontalCenter) << QRectF(85, 20, 30, 40);
    QTest::newRow("vertical centre") << int(VynSideVerticalCenter) << QRectF(10, 80, 30, 40);
    QTest::newRow("none unchanged") << int(VynSideNone) << QRectF(10, 20, 30, 40);
    QTest::newRow("all unchanged") << int(VynSideAll) << QRectF(10, 20, 30, 40);
}

void TestViewUtils::setOrthogonalDimension()
{
    QFETCH(int, side);
    QFETCH(QRectF, expected);
    QRectF rect(10, 20, 30, 40);
    const QRectF& returned = qRectFSetOrthogonalDimension(rect, VynSide(side), 100.0);
    QCOMPARE(rect, expected);
    QCOMPARE(&returned, &rect);
    // Whatever the side, the moved line lies where it was asked to.
    if (side != VynSideNone && side != VynSideAll)
        QCOMPARE(qRectFOrthogonalDimensionForSide(rect, VynSide(side)), 100.0);
}

void TestViewUtils::setSizeAlongOrientation()
{
    QRectF rect(10, 20, 30, 40);
    qRectFSetSizeAlongOrientation(rect, Qt::Vertical, 5, -3);
    QCOMPARE(rect, QRectF(10, 17, 30, 5));
    qRectFSetSizeAlongOrientation(rect, Qt::Horizontal, 8, 2);
    QCOMPARE(rect, QRectF(12, 17, 8, 5));
    qRectFSetSizeAlongOrientation(rect, Qt::Orientation(0), 1, 1);
    QCOMPARE(rect, QRectF(13, 17, 1, 5));
}

void TestViewUtils::lineRect_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("vertical") << 10.0 << 50.0 << Qt::Vertical << QRectF(4, 10, 2, 40);
    QTest::newRow("vertical reversed") << 50.0 << 10.0 << Qt::Vertical << QRectF(4, 10, 2, 40);
    QTest::newRow("horizontal") << 10.0 << 50.0 << Qt::Horizontal << QRectF(10, 4, 40, 2);
    QTest::newRow("horizontal reversed") << 50.0 << 10.0 << Qt::Horizontal << QRectF(10, 4, 40, 2);
}

void TestViewUtils::lineRect()
{
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QRectF, expected);
    QCOMPARE(qRectFForLine(start, end, 5.0, orientation, 2.0), expected);
}

void TestViewUtils::pointAlongSide_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QPointF>("expected");
    QTest::newRow("left") << int(VynSideLeft) << QPointF(10, 30);
    QTest::newRow("right") << int(VynSideRight) << QPointF(40, 30);
    QTest::newRow("top") << int(VynSideTop) << QPointF(17.5, 20);
    QTest::newRow("bottom") << int(VynSideBottom) << QPointF(17.5, 60);
    QTest::newRow("centre ignores t") << int(VynSideHorizontalCenter) << QPointF(25, 40);
    QTest::newRow("none is the centre") << int(VynSideNone) << QPointF(25, 40);
}

void TestViewUtils::pointAlongSide()
{
    QFETCH(int, side);
    QFETCH(QPointF, expected);
    QCOMPARE(vynPointAlongSideOfRect(QRectF(10, 20, 30, 40), VynSide(side), 0.25), expected);
}

void TestViewUtils::strictIntersection_data()
{
    QTest::addColumn<QRectF>("a");
    QTest::addColumn<QRectF>("b");
    QTest::addColumn<bool>("expected");
    QTest::newRow("touching right edge") << QRectF(0, 0, 10, 10) << QRectF(10, 0, 5, 5) << false;
    QTest::newRow("touching left edge") << QRectF(10, 0, 5, 5) << QRectF(0, 0, 10, 10) << false;
    QTest::newRow("touching bottom edge") << QRectF(0, 0, 10, 10) << QRectF(0, 10, 5, 5) << false;
    QTest::newRow("overlap") << QRectF(0, 0, 10, 10) << QRectF(9.5, 9.5, 5, 5) << true;
    QTest::newRow("contained") << QRectF(0, 0, 10, 10) << QRectF(2, 2, 1, 1) << true;
    QTest::newRow("apart") << QRectF(0, 0, 10, 10) << QRectF(20, 20, 1, 1) << false;
    QTest::newRow("same") << QRectF(0, 0, 10, 10) << QRectF(0, 0, 10, 10) << true;
}

void TestViewUtils::strictIntersection()
{
    QFETCH(QRectF, a);
    QFETCH(QRectF, b);
    QFETCH(bool, expected);
    QCOMPARE(qRectFStrictlyIntersectsRect(a, b), expected);
    QCOMPARE(qRectFStrictlyIntersectsRect(b, a), expected);
}

void TestViewUtils::largeContainment_data()
{
    QTest::addColumn<QRectF>("outer");
    QTest::addColumn<QRectF>("inner");
    QTest::addColumn<bool>("expected");
    QTest::newRow("itself") << QRectF(0, 0, 10, 10) << QRectF(0, 0, 10, 10) << true;
    QTest::newRow("shared edges") << QRectF(0, 0, 10, 10) << QRectF(5, 0, 5, 10) << true;
    QTest::newRow("sticks out right") << QRectF(0, 0, 10, 10) << QRectF(5, 0, 6, 10) << false;
    QTest::newRow("sticks out top") << QRectF(0, 0, 10, 10) << QRectF(0, -1, 5, 5) << false;
    QTest::newRow("empty inner inside") << QRectF(0, 0, 10, 10) << QRectF(3, 3, 0, 0) << true;

    QVERIFY(qRectFContainsQPoint(QRectF(0, 0, 10, 10), QPointF(5, 5)));
    QVERIFY(!qRectFContainsQPoint(QRectF(0, 0, 10, 10), QPointF(11, 5)));
}

void TestViewUtils::largeContainment()
{
    QFETCH(QRectF, outer);
    QFETCH(QRectF, inner);
    QFETCH(bool, expected);
    QCOMPARE(qRectFLargeContainsRect(outer, inner), expected);
}

void TestViewUtils::resizedWithAnchor_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QRectF>("expected");
    const QRectF r(10, 10, 20, 20);
    QTest::newRow("top left") << int(VynResizeAnchorTopLeft) << QRectF(10, 10, 40, 30);
    QTest::newRow("centre") << int(VynResizeAnchorCenter) << QRectF(0, 5, 40, 30);
    QTest::newRow("bottom right") << int(VynResizeAnchorBottomRight) << QRectF(-10, 0, 40, 30);
    QTest::newRow("top middle") << int(VynResizeAnchorTopMiddle) << QRectF(0, 10, 40, 30);
    QTest::newRow("middle right") << int(VynResizeAnchorMiddleRight) << QRectF(-10, 5, 40, 30);
    Q_UNUSED(r)
}

void TestViewUtils::resizedWithAnchor()
{
    QFETCH(int, anchor);
    QFETCH(QRectF, expected);
    const QRectF rect(10, 10, 20, 20);
    const QRectF resized = qRectFResizedWithAnchor(rect, VynResizeAnchor(anchor), 2.0, 1.5);
    QCOMPARE(resized, expected);
    // The anchor point stays where it was.
    const double kx = (anchor & 0xF) * 0.5, ky = ((anchor >> 4) & 0xF) * 0.5;
    QCOMPARE(resized.x() + kx * resized.width(), rect.x() + kx * rect.width());
    QCOMPARE(resized.y() + ky * resized.height(), rect.y() + ky * rect.height());
}

void TestViewUtils::maxResizeFactors_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    const QRectF r(10, 10, 20, 20);
    QTest::newRow("top left") << r << int(VynResizeAnchorTopLeft) << 4.5 << 4.5;
    QTest::newRow("centre") << r << int(VynResizeAnchorCenter) << 2.0 << 2.0;
    QTest::newRow("bottom right") << r << int(VynResizeAnchorBottomRight) << 1.5 << 1.5;
    QTest::newRow("top right") << r << int(VynResizeAnchorTopRight) << 1.5 << 4.5;
    // Anchor point beyond the bounds' far edges: those sides set no limit, and the near
    // sides have no part of the rectangle on them.
    QTest::newRow("anchor past the far edges")
        << QRectF(100, 110, 20, 20) << int(VynResizeAnchorTopLeft) << DBL_MAX << DBL_MAX;
    // Anchor point exactly on the bounds' right edge: the right side gives no room.
    QTest::newRow("anchor on the edge")
        << QRectF(80, 10, 20, 20) << int(VynResizeAnchorTopRight) << 5.0 << 4.5;
    QTest::newRow("zero width") << QRectF(10, 10, 0, 20) << int(VynResizeAnchorTopLeft) << DBL_MAX
                                << 4.5;
}

void TestViewUtils::maxResizeFactors()
{
    QFETCH(QRectF, rect);
    QFETCH(int, anchor);
    QFETCH(double, width);
    QFETCH(double, height);
    const QRectF bounds(0, 0, 100, 100);
    const QSizeF factors = qRectFGetMaxResizeFactors(rect, VynResizeAnchor(anchor), bounds);
    QCOMPARE(factors.width(), width);
    QCOMPARE(factors.height(), height);
    // A limited factor is the largest that keeps the rectangle inside the bounds.
    if (width < DBL_MAX && height < DBL_MAX) {
        const QRectF grown = qRectFResizedWithAnchor(rect, VynResizeAnchor(anchor), factors.width(),
                                                     factors.height());
        QVERIFY(qRectFLargeContainsRect(bounds.adjusted(-1e-9, -1e-9, 1e-9, 1e-9), grown));
    }
}

void TestViewUtils::minResizeFactors()
{
    QCOMPARE(qRectFGetMinResizeFactors(QRectF(0, 0, 20, 40), QSizeF(10, 10)), QSizeF(0.5, 0.25));
    const QSizeF unguarded = qRectFGetMinResizeFactors(QRectF(0, 0, 0, 40), QSizeF(10, 10));
    QVERIFY(qIsInf(unguarded.width()));
}

void TestViewUtils::alignedOnGrid_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("step");
    QTest::addColumn<bool>("alignWidth");
    QTest::addColumn<bool>("alignHeight");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("both") << QRectF(13, 27, 20, 20) << 10.0 << true << true
                          << QRectF(10, 20, 20, 20);
    QTest::newRow("edges from the snapped origin")
        << QRectF(13, 27, 25, 18) << 10.0 << true << true << QRectF(10, 20, 20, 10);
    QTest::newRow("origin only") << QRectF(13, 27, 25, 18) << 10.0 << false << false
                                 << QRectF(10, 20, 25, 18);
    QTest::newRow("negative floors down")
        << QRectF(-3, -13, 5, 5) << 10.0 << false << false << QRectF(-10, -20, 5, 5);
    // 0.3 / 0.1 is 2.9999999999999996 in double, exactly 3 in single precision.
    QTest::newRow("single-precision quotient")
        << QRectF(0.3, 0, 1, 1) << 0.1 << false << false << QRectF(0.30000000000000004, 0, 1, 1);
    QTest::newRow("huge quotient used as it is")
        << QRectF(1e10 + 0.5, 0, 1, 1) << 1.0 << false << false
        << QRectF(double(float(1e10 + 0.5)), 0, 1, 1);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const QRectF odd(13, 27, 25, 18);
    QTest::newRow("step 0: unchanged") << odd << 0.0 << true << true << odd;
    QTest::newRow("negative step: unchanged") << odd << -10.0 << true << true << odd;
    QTest::newRow("NaN step: unchanged") << odd << nan << true << true << odd;
    QTest::newRow("infinite step: unchanged") << odd << inf << true << true << odd;
    QTest::newRow("value beyond single precision: unchanged")
        << QRectF(1e300, -1e300, 1, 1) << 1.0 << false << false << QRectF(1e300, -1e300, 1, 1);
    QTest::newRow("tiny step: unchanged")
        << QRectF(13, 27, 25, 18) << 1e-320 << false << false << QRectF(13, 27, 25, 18);
    QTest::newRow("NaN origin stays, the other one snaps")
        << QRectF(nan, 27, 25, 18) << 10.0 << false << true << QRectF(nan, 20, 25, 10);
    QTest::newRow("infinite size stays")
        << QRectF(13, 27, inf, 18) << 10.0 << true << false << QRectF(10, 20, inf, 18);
}

void TestViewUtils::alignedOnGrid()
{
    QFETCH(QRectF, rect);
    QFETCH(double, step);
    QFETCH(bool, alignWidth);
    QFETCH(bool, alignHeight);
    QFETCH(QRectF, expected);
    const QRectF aligned =
        qRectFAlignedOnGrid(rect, step, VynResizeAnchorCenter, alignWidth, alignHeight, true);
    QCOMPARE(aligned.x(), expected.x());
    QCOMPARE(aligned.y(), expected.y());
    QCOMPARE(aligned.width(), expected.width());
    QCOMPARE(aligned.height(), expected.height());
}

void TestViewUtils::rounded_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("halves away from zero") << QRectF(0.5, -0.5, 2.5, 1.49) << QRectF(1, -1, 3, 1);
    QTest::newRow("size rounded by itself") << QRectF(0.4, 0.4, 0.4, 0.4) << QRectF(0, 0, 0, 0);
    // 0.49999999999999994 becomes 0.5 in single precision and then rounds up.
    QTest::newRow("single precision first")
        << QRectF(0.49999999999999994, 0, 1, 1) << QRectF(1, 0, 1, 1);
}

void TestViewUtils::rounded()
{
    QFETCH(QRectF, rect);
    QFETCH(QRectF, expected);
    QRectF copy = rect;
    const QRectF result = roundedQRectF(copy);
    QCOMPARE(result, expected);
    QCOMPARE(copy, expected);
}

void TestViewUtils::fitted_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("inside unchanged") << QRectF(10, 10, 5, 5) << QRectF(10, 10, 5, 5);
    QTest::newRow("clipped left") << QRectF(-10, 0, 20, 5) << QRectF(0, 0, 10, 5);
    QTest::newRow("clipped right and bottom") << QRectF(90, 95, 20, 20) << QRectF(90, 95, 10, 5);
    QTest::newRow("outside gives negative width") << QRectF(-10, 0, 5, 5) << QRectF(0, 0, -5, 5);
    QTest::newRow("larger than the bounds") << QRectF(-10, -10, 200, 200) << QRectF(0, 0, 100, 100);
}

void TestViewUtils::fitted()
{
    QFETCH(QRectF, rect);
    QFETCH(QRectF, expected);
    const QRectF result = fittedQRectF(rect, QRectF(0, 0, 100, 100));
    QCOMPARE(result.x(), expected.x());
    QCOMPARE(result.y(), expected.y());
    QCOMPARE(result.width(), expected.width());
    QCOMPARE(result.height(), expected.height());
}

void TestViewUtils::recordMakers()
{
    const VynSpinBoxValue spin = VynSpinBoxValueMake(1, 0, 2, true);
    QCOMPARE(spin.value, 1.0f);
    QCOMPARE(spin.maxValue, 2.0f);
    QVERIFY(!spin.isMultiple);

    const VynTextFieldValue single = VynTextFieldValueMake(QStringLiteral("Amp 1"), false);
    QCOMPARE(single.text, QStringLiteral("Amp 1"));
    QVERIFY(single.placeholder.isNull());
    QVERIFY(!single.isMultiple);
    const VynTextFieldValue multiple = VynTextFieldValueMake(QStringLiteral("Amp 1"), true);
    QVERIFY(multiple.text.isNull());
    QCOMPARE(multiple.placeholder, QStringLiteral("Multiple"));
    QVERIFY(multiple.isMultiple);

    const VynComboValue one = VynComboValueMake({3});
    QVERIFY(one.text.isEmpty());
    QVERIFY(!one.isMultiple);
    QCOMPARE(one.selectedIndexes, QSet<int>({3}));
    const VynComboValue two = VynComboValueMake({1, 2});
    QCOMPARE(two.text, QStringLiteral("Multiple"));
    QVERIFY(two.isMultiple);
    QCOMPARE(VynComboValueMake({}), VynComboValue());
}

void TestViewUtils::recordsInVariants()
{
    // The records travel through QVariant under their qualified names and short typedefs.
    QCOMPARE(QMetaType::fromName("VynViewUtils::VynSideBounds"),
             QMetaType::fromType<VynSideBounds>());
    QCOMPARE(QMetaType::fromName("VynGraphLabel"), QMetaType::fromType<VynGraphLabel>());
    VynGraphLabel label;
    label.position = 0.5;
    label.text = QStringLiteral("1k");
    const QVariant variant = QVariant::fromValue(label);
    QCOMPARE(variant.value<VynGraphLabel>(), label);

    const QVariant indexes = QVariant::fromValue(QSet<int>{4, 1});
    QCOMPARE(indexes.value<QVariantList>(), QVariantList({1, 4}));
}

QTEST_GUILESS_MAIN(TestViewUtils)
#include "tst_viewutils.moc"
