#include <vyncolorappearance.h>
#include <vynuimetrics.h>
#include <vynuiplugin.h>
#include <vynuiqmlconstants.h>
#include <vynviewconstants.h>
#include <vynvumeterconstants.h>

#include <qtcommonstitlebar.h>
#include <vynfileutils.h>

#include <QFile>
#include <QMetaMethod>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QtTest>
#include <QWindow>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

using VynViewUtils::VynControlSize;

namespace {

constexpr VynControlSize Mini = VynViewUtils::VynControlSizeMini;
constexpr VynControlSize Small = VynViewUtils::VynControlSizeSmall;
constexpr VynControlSize Regular = VynViewUtils::VynControlSizeRegular;
constexpr VynControlSize Large = VynViewUtils::VynControlSizeLarge;
constexpr VynControlSize ExtraLarge = VynViewUtils::VynControlSizeExtraLarge;

// A value of enumeration \a type holding \a raw, named or not, as QML stores an integer
// where a member takes an enumeration.
QVariant enumValue(QMetaType type, int raw)
{
    QVariant value(type, nullptr);
    Q_ASSERT(type.sizeOf() == int(sizeof(raw)));
    std::memcpy(value.data(), &raw, sizeof(raw));
    return value;
}

// Calls \a method with \a args, which hold the method's own parameter types.
QVariant invokeWith(const QMetaMethod& method, const QList<QVariant>& args)
{
    QVariant result(method.returnMetaType(), nullptr);
    QGenericReturnArgument ret(method.returnMetaType().name(), result.data());
    QGenericArgument a[10];
    for (int p = 0; p < args.size(); ++p)
        a[p] = QGenericArgument(method.parameterMetaType(p).name(), args.at(p).constData());
    if (!method.invoke(VynUIQmlConstants::instance(), Qt::DirectConnection, ret, a[0], a[1], a[2],
                       a[3], a[4], a[5], a[6], a[7], a[8], a[9]))
        return QVariant();
    return method.returnMetaType() == QMetaType::fromType<void>() ? QVariant(true) : result;
}

/*
 * Calls a catalogue member by name through the meta-object, as QML does, so the
 * tests also check that the member is invokable with the expected argument
 * types. An int given for an enumeration is stored as QML stores it, whatever
 * its value; such a value is never copied as the enumeration, which would be
 * undefined for a value the enumeration cannot hold. The answer keeps the
 * member's return type; an invalid QVariant means that no member takes these
 * arguments.
 */
QVariant callMember(const char* name, const QList<QVariant>& args)
{
    VynUIQmlConstants* object = VynUIQmlConstants::instance();
    const QMetaObject* meta = object->metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.name() != name || method.parameterCount() != args.size())
            continue;
        QList<QVariant> converted;
        converted.reserve(args.size());
        bool ok = true;
        for (int p = 0; p < args.size(); ++p) {
            const QMetaType type = method.parameterMetaType(p);
            if ((type.flags() & QMetaType::IsEnumeration) &&
                args.at(p).typeId() == QMetaType::Int) {
                converted.append(enumValue(type, args.at(p).toInt()));
                continue;
            }
            QVariant arg = args.at(p);
            ok = ok && arg.convert(method.parameterMetaType(p));
            converted.append(arg);
        }
        if (!ok)
            continue;
        return invokeWith(method, converted);
    }
    qWarning("no invokable %s with %d arguments", name, int(args.size()));
    return QVariant();
}

// callMember() converted to double whatever the member's return type; NaN when the call fails.
double callMetric(const char* name, const QList<QVariant>& args)
{
    const QVariant result = callMember(name, args);
    return result.isValid() ? result.toDouble() : std::nan("");
}

// The argument a call passes for a parameter that is not under test.
QVariant neutralArgument(QMetaType type)
{
    if (type.flags() & QMetaType::IsEnumeration)
        return enumValue(type, 1);
    if (type == QMetaType::fromType<QColor>())
        return QColor(200, 60, 30, 128);
    if (type == QMetaType::fromType<QRectF>())
        return QRectF(1, 2, 30, 40);
    if (type == QMetaType::fromType<QList<double>>())
        return QVariant::fromValue(QList<double>{0.0, 0.5, 1.0});
    if (type == QMetaType::fromType<QWindow*>())
        return QVariant::fromValue<QWindow*>(nullptr);
    if (type == QMetaType::fromType<VynProxyParamPath>())
        return QVariant::fromValue(VynProxyParamPath::fromString(QStringLiteral("Amp[1]/Mute")));
    QVariant value(1);
    return value.convert(type) ? value : QVariant();
}

bool sameAnswer(const QVariant& a, const QVariant& b)
{
    if (a.metaType() == QMetaType::fromType<VynViewUtils::VynSideBounds>()) {
        const auto x = a.value<VynViewUtils::VynSideBounds>();
        const auto y = b.value<VynViewUtils::VynSideBounds>();
        return x.min == y.min && x.max == y.max;
    }
    return a.isValid() && a == b;
}

/*
 * The named values of the enumerations the catalogue takes, and for any other integer the
 * named value whose answer the catalogue gives for it.
 */
struct EnumRule
{
    const char* type;
    QList<int> named;
    int (*equivalent)(int raw, const QByteArray& member);
};

const EnumRule kEnumRules[] = {
    {"VynViewUtils::VynControlSize",
     {0, 1, 2, 3, 4},
     [](int raw, const QByteArray&) { return raw < 0 ? 0 : 4; }},
    {"VynColorUtils::VynStyle", {0, 1}, [](int raw, const QByteArray&) { return raw < 0 ? 0 : 1; }},
    {"Qt::Orientation", {1, 2}, [](int, const QByteArray&) { return int(Qt::Horizontal); }},
    {"VynViewUtils::VynSide",
     {0, 1, 2, 4, 8, 15, 16, 32},
     [](int raw, const QByteArray& member) {
         // Corners read the four edge bits; single-edge members answer as for no edge.
         return member == "cornersForSides" ? raw & 15 : 0;
     }},
    {"VynEQConstants::VynEQBandType",
     {0, 1, 2, 3, 4, 5, 6, 7, 65535},
     [](int, const QByteArray&) { return 65535; }},
    {"VynColorUtils::VynStylePreference", {0, 1, 2}, [](int, const QByteArray&) { return 2; }},
    {"VynViewUtils::VynLedState",
     {0, 1, 2, 3, 4, 255, 256, 257, 258, 259, 260, 512, 513, 514},
     [](int, const QByteArray&) { return int(VynViewUtils::VynLedStateNone); }},
};

const EnumRule* enumRule(QMetaType type)
{
    for (const EnumRule& rule : kEnumRules) {
        if (qstrcmp(type.name(), rule.type) == 0)
            return &rule;
    }
    return nullptr;
}

} // namespace

class tst_QmlConstants : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void controlSizeTables_data();
    void controlSizeTables();
    void sizeBranches_data();
    void sizeBranches();
    void ratioMetrics_data();
    void ratioMetrics();
    void outOfRange_data();
    void outOfRange();
    void defaultArguments();
    void fontSizesAreInts();

    void genericHelpers_data();
    void genericHelpers();
    void conversionsClampToTheirType();
    void fontSpaceWidth_data();
    void fontSpaceWidth();
    void colorIndexUser_data();
    void colorIndexUser();
    void samplesValue_data();
    void samplesValue();
    void scaledWindowSizes();
    void ampOutSizes();

    void axisLabels();
    void eqBandTypes();
    void eqImageUrls();
    void mimeTypes();
    void geometryForwarders();
    void nativeTitleBar();
    void enumArgumentsOutOfRange_data();
    void enumArgumentsOutOfRange();
    void enumArgumentAnswers_data();
    void enumArgumentAnswers();

    void tickMarkChoice_data();
    void tickMarkChoice();
    void halfPixel_data();
    void halfPixel();

    void singletonSharedByEngines();
    void registeredTypes();

    void metricsAnswerTheCatalogue_data();
    void metricsAnswerTheCatalogue();
    void metricsShared();
    void metricsFollowTheLook();

    void colorMembersPresent();
    void colorForwarders_data();
    void colorForwarders();
    void meterColors_data();
    void meterColors();
    void styleForColor();
    void derivedControlColors();
};

void tst_QmlConstants::initTestCase()
{
    VynUIPlugin::initializeTypes();
}

void tst_QmlConstants::controlSizeTables_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("expected");

    const auto row = [](const char* member, VynControlSize size, double ratio, double expected) {
        QTest::addRow("%s/%d/%g", member, int(size), ratio)
            << QByteArray(member) << int(size) << ratio << expected;
    };
    row("fontSize", Mini, 1.0, 9);
    row("fontSize", Mini, 2.0, 18);
    row("fontSize", Small, 1.5, 17);    // 16.5
    row("fontSize", Regular, 1.25, 16); // 16.25
    row("fontSize", ExtraLarge, 1.0, 19);
    row("fontSize", ExtraLarge, 1.5, 29);         // 28.5
    row("fontSizePopupButton", Large, 1.5, 23);   // 22.5
    row("fontSizeInlineButton", Small, 1.25, 13); // 12.5
    row("fontSizePatchButton", Mini, 1.25, 10);
    row("marginParent", Small, 1.25, 10);
    row("marginSpace", Large, 1.5, 24);
    row("popoverGenericWidth", Mini, 1.5, 263); // 262.5
    row("popupButtonInsetsV", Small, 1.25, 3);  // 2.5
    row("toolbarButtonTitleIconSpacing", Mini, 2.0, 0);
    row("ledHeight", ExtraLarge, 2.0, 40);
    row("ledHeight", Mini, 1.5, 14);        // 13.5
    row("textFieldHeight", Small, 1.5, 26); // 25.5
    row("bezelButtonCornerRadius", Regular, 1.25, 3.75);
    row("bezelButtonTitleInsetsH", Regular, 1.5, 11); // 10.5
    row("flatButtonHeight", ExtraLarge, 1.25, 45);
    row("flatButtonCornerRadius", Small, 1.5, 5.25);
    row("flatButtonCornerRadius", ExtraLarge, 1.25, 7.5);
    row("vuMeterTickPrimaryWidth", Mini, 1.5, 5); // 4.5
    row("flatButtonTitleIconSpacing", Large, 1.0, 6);
    row("viewListButtonCornerRadius", Small, 1.0, 3.5);
    // Rows that are not monotonic keep their values.
    row("viewListButtonTitleInsetsH", Small, 1.0, 16);
    row("viewListButtonTitleInsetsH", Regular, 1.0, 7);
    row("viewListButtonImageInsetsH", Small, 1.25, 15);
    row("viewListButtonImageInsetsH", Regular, 1.0, 4);
    row("textFieldLabelTextSpacing", Small, 1.0, 5);
    row("textFieldLabelTextSpacing", Regular, 1.0, 4);
    row("vuMeterTickLabelOffset", Large, 1.5, 5); // 4.5
    row("popupButtonCornerRadius", Mini, 1.25, 2.5);
    row("textFieldUnitButtonTextSpacing", Large, 1.25, 3); // 2.5
    row("sliderTrackCornerRadius", Large, 1.5, 1.5);
    row("sliderThumbHeight", Large, 1.5, 35); // 34.5
    row("sliderInsetsH", Large, 2.0, 0);
    row("vuMeterCursorHeight", Mini, 1.25, 15);
    // Half-pixel entries round too.
    row("vuMeterTickSecondaryOffset", Mini, 1.0, 1);
    row("vuMeterTickSecondaryOffset", Small, 2.0, 1);
    row("vuMeterTickSecondaryWidth", Small, 1.0, 3);
    row("vuMeterTickSecondaryWidth", Regular, 1.0, 4);
    row("vuMeterTickSecondaryFontSize", Regular, 1.5, 14); // 13.5
}

void tst_QmlConstants::controlSizeTables()
{
    QFETCH(QByteArray, member);
    QFETCH(int, size);
    QFETCH(double, ratio);
    QFETCH(double, expected);
    QCOMPARE(callMetric(member, {QVariant::fromValue(VynControlSize(size)), ratio}), expected);
}

void tst_QmlConstants::sizeBranches_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("expected");

    const auto row = [](const char* member, VynControlSize size, double ratio, double expected) {
        QTest::addRow("%s/%d/%g", member, int(size), ratio)
            << QByteArray(member) << int(size) << ratio << expected;
    };
    row("marginWindow", Small, 1.25, 13); // 12.5
    row("marginWindow", Mini, 1.0, 10);
    row("marginWindow", Regular, 1.0, 20);
    row("marginWindow", ExtraLarge, 1.5, 30);
    row("marginPopover", Small, 1.5, 8);     // 7.5
    row("marginPopover", Regular, 1.25, 13); // 12.5
    row("marginPopover", Large, 1.0, 20);
    row("colorIconHeight", Mini, 1.0, 16);
    row("colorIconHeight", Regular, 1.25, 28); // 27.5
    row("colorIconHeight", ExtraLarge, 1.0, 26);
    row("eqTypeIconHeight", Small, 1.25, 28);  // 27.5
    row("eqTypeIconHeight", Regular, 1.5, 41); // 40.5
    row("eqTypeIconHeight", Large, 1.0, 54);
    row("tableViewRowHeight", Regular, 1.0, 20);
    row("tableViewRowHeight", Large, 1.0, 40);
    row("tableViewRowHeight", Mini, 2.0, 40);
    row("buttonDropDownArrowWidth", Regular, 1.5, 8); // 7.5
    row("buttonDropDownArrowWidth", ExtraLarge, 1.0, 8);
    row("buttonDropDownArrowHeight", Large, 1.25, 5);
    row("buttonDropDownArrowHeight", Small, 1.5, 5); // 4.5
    row("tabButtonHeight", Small, 1.5, 47);          // 46.5
    row("tabButtonHeight", Regular, 1.0, 39);
    row("switchButtonWidth", Mini, 1.5, 56); // 55.5
    row("switchButtonWidth", Large, 1.0, 50);
    row("switchButtonHeight", Regular, 1.5, 41); // 40.5
    row("circularProgressHeight", Small, 1.0, 14);
    row("circularProgressHeight", Regular, 1.0, 16);
    row("patchAnchorWidth", Mini, 1.25, 8); // 7.5
    row("patchAnchorWidth", Regular, 1.25, 10);
    row("circularProgressThickness", ExtraLarge, 1.25, 3); // 2.5
    row("fontSizeTabButton", Mini, 1.5, 23);               // 22.5
}

void tst_QmlConstants::sizeBranches()
{
    controlSizeTables();
}

void tst_QmlConstants::ratioMetrics_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("expected");

    const auto row = [](const char* member, double ratio, double expected) {
        QTest::addRow("%s/%g", member, ratio) << QByteArray(member) << ratio << expected;
    };
    row("popoverShadowOffsetH", 0.5, 1);
    row("popoverShadowOffsetH", 1.0, 1);
    row("logGraphAxisShadowOffset", 0.5, -1);
    row("logGraphAxisShadowOffset", 2.0, -2);
    row("zoneIconShadowOffsetW", 2.0, 0);
    row("popupShadowBlur", 1.25, 25);
    row("fontSizeTitlePrimary", 1.5, 41); // 40.5
    row("fontSizeLogYLabel", 1.5, 14);    // 13.5
    row("fontSizeCellDetail", 1.25, 13);  // 12.5
    row("borderViewCornerRadius", 1.25, 8.75);
    row("popoverCornerRadius", 1.5, 10.5);
    row("ledGlowRadius", 1.25, 7.5);
    row("vuMeterGlowRadius", 1.25, 7.5);
    row("logGraphBubbleRadius", 1.25, 12.5);
    row("ledBorder", 1.0, 1); // 0.5
    row("ledBorder", 2.0, 1);
    row("tableViewBorder", 1.5, 1);             // 0.75
    row("vuMeterMarginHMin", 1.0, 2);           // 1.5
    row("vuMeterTickSecondaryHeight", 1.25, 1); // 0.625
    row("graphThumbnailCurveWidth", 1.0, 2);
    row("logGraphAvgCurveWidth", 1.0, 1);
    row("patchViewNotHighlightedLineWidth", 1.25, 2); // 1.875
    row("logGraphCellDefaultHeight", 1.5, 242);       // 241.5
    row("sliderMaxDistancePerSecond", 1.25, 250);
    row("eqThumbnailStandardWidth", 1.25, 115);
    row("imageAdditionalButtonHeightMobile", 1.5, 56); // 55.5
    row("scrollBarWidth", 1.25, 8);                    // 7.5
    row("slideFieldZoneCount", 1.125, 5);              // 4.5
    row("slideFieldZoneCount", 1.0, 4);
}

void tst_QmlConstants::ratioMetrics()
{
    QFETCH(QByteArray, member);
    QFETCH(double, ratio);
    QFETCH(double, expected);
    QCOMPARE(callMetric(member, {ratio}), expected);
}

void tst_QmlConstants::outOfRange_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("expected");

    // Sizes a table does not define read its nearest defined row.
    QTest::newRow("four rows, ExtraLarge reads Large") << QByteArray("marginParent") << 4 << 16.0;
    QTest::newRow("four rows, past ExtraLarge") << QByteArray("bezelButtonHeight") << 9 << 27.0;
    QTest::newRow("four rows, below Mini") << QByteArray("marginSpace") << -1 << 2.0;
    QTest::newRow("unrounded row, ExtraLarge")
        << QByteArray("viewListButtonCornerRadius") << 4 << 5.0;
    QTest::newRow("five rows, past ExtraLarge") << QByteArray("fontSize") << 5 << 19.0;
    QTest::newRow("five rows, far below Mini")
        << QByteArray("flatButtonHeight") << std::numeric_limits<int>::min() << 16.0;
    QTest::newRow("branch, past ExtraLarge") << QByteArray("marginPopover") << 12 << 20.0;
    QTest::newRow("branch, below Mini") << QByteArray("eqTypeIconHeight") << -3 << 22.0;
}

void tst_QmlConstants::outOfRange()
{
    QFETCH(QByteArray, member);
    QFETCH(int, size);
    QFETCH(double, expected);
    QCOMPARE(callMetric(member, {QVariant::fromValue(VynControlSize(size)), 1.0}), expected);

    QCOMPARE(VynUIQmlConstants::slideFieldRate(-1), 0.25);
    QCOMPARE(VynUIQmlConstants::slideFieldRate(4, 2.0), 8.0);
    QCOMPARE(VynUIQmlConstants::slideFieldFrom(99, 1.5), 450.0);
    QCOMPARE(VynUIQmlConstants::slideFieldFrom(1, 1.25), 125.0);
}

void tst_QmlConstants::defaultArguments()
{
    // A missing ratio is 1.0 and a missing size Regular; QML sees one overload per form.
    QCOMPARE(callMetric("fontSize", {}), 13.0);
    QCOMPARE(callMetric("fontSize", {QVariant::fromValue(Mini)}), 9.0);
    QCOMPARE(callMetric("marginWindow", {}), 20.0);
    QCOMPARE(callMetric("flatButtonCornerRadius", {QVariant::fromValue(Small)}), 3.5);
    QCOMPARE(callMetric("popoverShadowBlur", {}), 12.0);
    QCOMPARE(callMetric("getConstantValue", {2.5}), 2.5);
    QCOMPARE(callMetric("minControlAmpInHeightOrla", {}), 100.0);

    const QMetaObject* meta = &VynUIQmlConstants::staticMetaObject;
    QVERIFY(meta->indexOfMethod("fontSize()") >= 0);
    QVERIFY(meta->indexOfMethod("fontSize(VynViewUtils::VynControlSize)") >= 0);
    QVERIFY(meta->indexOfMethod("fontSize(VynViewUtils::VynControlSize,double)") >= 0);
    QVERIFY(meta->indexOfMethod("imageUrlsForEQTypeSelector()") >= 0);
    QVERIFY(meta->indexOfMethod("imageUrlsForEQTypeSelector(VynColorUtils::VynStyle)") >= 0);
}

void tst_QmlConstants::fontSizesAreInts()
{
    const QMetaObject* meta = &VynUIQmlConstants::staticMetaObject;
    for (const char* signature :
         {"fontSize(VynViewUtils::VynControlSize,double)",
          "fontSizeTabButton(VynViewUtils::VynControlSize)", "fontSizeTitlePrimary(double)",
          "vuMeterTickPrimaryFontSize()", "slideFieldZoneCount(double)", "windowWidthOrlaMain()"}) {
        const int index = meta->indexOfMethod(signature);
        QVERIFY2(index >= 0, signature);
        QCOMPARE(meta->method(index).returnMetaType(), QMetaType::fromType<int>());
    }
    const int margin = meta->indexOfMethod("marginParent(VynViewUtils::VynControlSize,double)");
    QVERIFY(margin >= 0);
    QCOMPARE(meta->method(margin).returnMetaType(), QMetaType::fromType<double>());
}

void tst_QmlConstants::genericHelpers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QVariant>("plain");
    QTest::addColumn<QVariant>("rounded");

    QTest::newRow("double") << QVariant(2.5) << 1.5 << QVariant(3.75) << QVariant(4.0);
    QTest::newRow("double negative half")
        << QVariant(-1.25) << 2.0 << QVariant(-2.5) << QVariant(-3.0);
    QTest::newRow("float") << QVariant(0.1f) << 3.0 << QVariant(0.1f * 3.0f) << QVariant(0.0f);
    QTest::newRow("float half") << QVariant(1.25f) << 2.0 << QVariant(2.5f) << QVariant(3.0f);
    QTest::newRow("int truncates") << QVariant(7) << 1.5 << QVariant(10) << QVariant(11);
    QTest::newRow("int truncates toward zero")
        << QVariant(-7) << 1.5 << QVariant(-10) << QVariant(-11);
    QTest::newRow("uint") << QVariant(5u) << 1.25 << QVariant(6u) << QVariant(6u);
    QTest::newRow("uint half") << QVariant(3u) << 1.5 << QVariant(4u) << QVariant(5u);
}

void tst_QmlConstants::genericHelpers()
{
    QFETCH(QVariant, value);
    QFETCH(double, ratio);
    QFETCH(QVariant, plain);
    QFETCH(QVariant, rounded);

    QVariant gotPlain;
    QVariant gotRounded;
    switch (value.typeId()) {
    case QMetaType::Double:
        gotPlain = VynUIQmlConstants::getConstantValue(value.toDouble(), ratio);
        gotRounded = VynUIQmlConstants::getRoundedConstantValue(value.toDouble(), ratio);
        break;
    case QMetaType::Float:
        gotPlain = VynUIQmlConstants::getConstantValue(value.toFloat(), ratio);
        gotRounded = VynUIQmlConstants::getRoundedConstantValue(value.toFloat(), ratio);
        break;
    case QMetaType::Int:
        gotPlain = VynUIQmlConstants::getConstantValue(value.toInt(), ratio);
        gotRounded = VynUIQmlConstants::getRoundedConstantValue(value.toInt(), ratio);
        break;
    default:
        gotPlain = VynUIQmlConstants::getConstantValue(value.toUInt(), ratio);
        gotRounded = VynUIQmlConstants::getRoundedConstantValue(value.toUInt(), ratio);
        break;
    }
    QCOMPARE(gotPlain.typeId(), plain.typeId());
    QCOMPARE(gotPlain, plain);
    QCOMPARE(gotRounded.typeId(), rounded.typeId());
    QCOMPARE(gotRounded, rounded);

    QCOMPARE(VynUIQmlConstants::getConstantValueForPoint(QPointF(2, -3), 1.5), QPointF(3, -4.5));
    QCOMPARE(VynUIQmlConstants::getConstantValueForSize(QSizeF(4, 5), 1.25), QSizeF(5, 6.25));
    QCOMPARE(VynUIQmlConstants::getConstantValueForRect(QRectF(1, 2, 3, 4), 2.0),
             QRectF(2, 4, 6, 8));
}

void tst_QmlConstants::conversionsClampToTheirType()
{
    constexpr int maxInt = std::numeric_limits<int>::max();
    QCOMPARE(VynUIQmlConstants::getConstantValue(maxInt, 4.0), maxInt);
    QCOMPARE(VynUIQmlConstants::getRoundedConstantValue(-maxInt, 4.0),
             std::numeric_limits<int>::min());
    QCOMPARE(VynUIQmlConstants::getConstantValue(7u, -1.0), 0u);
    QCOMPARE(VynUIQmlConstants::getConstantValue(7, std::nan("")), 0);
    QCOMPARE(VynUIQmlConstants::fontSize(Regular, 1e12), maxInt);
    QCOMPARE(VynUIQmlConstants::minSearchFieldWidthOrlaLibrary(-1e12),
             std::numeric_limits<int>::min());
}

void tst_QmlConstants::fontSpaceWidth_data()
{
    QTest::addColumn<int>("fontSize");
    QTest::addColumn<int>("expected");
    QTest::newRow("13") << 13 << 4; // 3.2093
    QTest::newRow("9") << 9 << 3;   // 2.2185
    QTest::newRow("4") << 4 << 1;   // 0.98
    QTest::newRow("1") << 1 << 1;   // 0.2369
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("negative") << -10 << 0;
}

void tst_QmlConstants::fontSpaceWidth()
{
    QFETCH(int, fontSize);
    QFETCH(int, expected);
    QCOMPARE(VynUIQmlConstants::fontSpaceWidth(fontSize), expected);
}

void tst_QmlConstants::colorIndexUser_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("expected");
    QTest::newRow("0") << 0.0 << 0;
    QTest::newRow("1") << 1.0 << 2147483647;
    QTest::newRow("half rounds away from zero") << 0.5 << 1073741824; // 1073741823.5
    QTest::newRow("above 1 clamps") << 2.0 << 2147483647;
    QTest::newRow("negative") << -0.5 << -1073741824;
    QTest::newRow("below -1 clamps") << -3.0 << std::numeric_limits<int>::min();
    QTest::newRow("NaN") << std::nan("") << 0;
}

void tst_QmlConstants::colorIndexUser()
{
    QFETCH(double, ratio);
    QFETCH(int, expected);
    QCOMPARE(VynUIQmlConstants::colorIndexUser(ratio), expected);
}

void tst_QmlConstants::samplesValue_data()
{
    QTest::addColumn<uint>("radius");
    QTest::addColumn<int>("expected");
    QTest::newRow("0") << 0u << 1;
    QTest::newRow("6") << 6u << 13;
    QTest::newRow("32") << 32u << 65;
    QTest::newRow("capped") << 33u << 65;
    QTest::newRow("huge") << std::numeric_limits<uint>::max() << 65;
}

void tst_QmlConstants::samplesValue()
{
    QFETCH(uint, radius);
    QFETCH(int, expected);
    QCOMPARE(VynUIQmlConstants::getSamplesValue(radius), expected);
}

void tst_QmlConstants::scaledWindowSizes()
{
    QCOMPARE(VynUIQmlConstants::minControlAmpInHeightOrla(1.25), 125);
    QCOMPARE(VynUIQmlConstants::standardControlAmpInHeightOrla(1.5), 210);
    QCOMPARE(VynUIQmlConstants::minControlAmpOutHeightOrla(1.25), 162);     // 162.5 truncated
    QCOMPARE(VynUIQmlConstants::standardControlKroInHeightOrla(1.01), 151); // 151.5 truncated
    QCOMPARE(VynUIQmlConstants::minSearchFieldWidthOrlaLibrary(), 120);
}

void tst_QmlConstants::ampOutSizes()
{
    QCOMPARE(VynUIQmlConstants::minControlAmpOutTopSizeOrla(Mini, 1.25), QSizeF(162.5, 212.5));
    QCOMPARE(VynUIQmlConstants::minControlAmpOutTopSizeOrla(Small), QSizeF(150, 300));
    QCOMPARE(VynUIQmlConstants::minControlAmpOutBottomSizeOrla(Small, 1.5), QSizeF(255, 660));
    // Only Mini and Small are defined: the other sizes answer the nearest one.
    QCOMPARE(VynUIQmlConstants::minControlAmpOutTopSizeOrla(), QSizeF(150, 300));
    QCOMPARE(VynUIQmlConstants::minControlAmpOutBottomSizeOrla(ExtraLarge), QSizeF(170, 440));
    QCOMPARE(VynUIQmlConstants::minControlAmpOutBottomSizeOrla(VynControlSize(-2)),
             QSizeF(150, 175));
}

void tst_QmlConstants::axisLabels()
{
    const auto texts = [](const QVariantList& list) {
        QStringList result;
        for (const QVariant& v : list)
            result.append(v.value<VynViewUtils::VynGraphLabel>().text);
        return result;
    };
    const auto positions = [](const QVariantList& list) {
        QList<double> result;
        for (const QVariant& v : list)
            result.append(v.value<VynViewUtils::VynGraphLabel>().position);
        return result;
    };

    const QVariantList eqX = VynUIQmlConstants::eqXLabels();
    QVERIFY(eqX.first().canConvert<VynViewUtils::VynGraphLabel>());
    QCOMPARE(texts(eqX),
             QStringList({"20", "50", "100", "200", "500", "1k", "2k", "5k", "10k", "20k"}));
    QCOMPARE(positions(eqX),
             QList<double>({20, 50, 100, 200, 500, 1000, 2000, 5000, 10000, 20000}));
    const QVariantList eqY = VynUIQmlConstants::eqYLabels();
    QCOMPARE(texts(eqY), QStringList({"-18", "-12", "-6", "0", "+6", "+12", "+18"}));
    QCOMPARE(positions(eqY), QList<double>({-18, -12, -6, 0, 6, 12, 18}));
    const QStringList dyn({"-60", "-50", "-40", "-30", "-20", "-10", "0"});
    QCOMPARE(texts(VynUIQmlConstants::dynXLabels()), dyn);
    QCOMPARE(texts(VynUIQmlConstants::dynYLabels()), dyn);
    QCOMPARE(positions(VynUIQmlConstants::dynYLabels()),
             QList<double>({-60, -50, -40, -30, -20, -10, 0}));

    // Each call hands out a fresh list: a caller's changes stay its own.
    QVariantList mine = VynUIQmlConstants::eqXLabels();
    mine.clear();
    QCOMPARE(VynUIQmlConstants::eqXLabels().size(), 10);
}

void tst_QmlConstants::eqBandTypes()
{
    using namespace VynEQConstants;
    for (int i = 0; i < kVynEQSuggestionsCount; ++i) {
        const VynEQBandType type = VynUIQmlConstants::eqBandTypeForIndex(i);
        QCOMPARE(type, kVynEQSuggestions[i].type);
        QCOMPARE(VynUIQmlConstants::eqIndexForBandType(type), i);
        QCOMPARE(VynUIQmlConstants::eqBandTypeStringForIndex(i),
                 QString::fromLatin1(kVynEQSuggestions[i].name));
    }
    QCOMPARE(int(VynUIQmlConstants::eqBandTypeForIndex(6)), 65535);
    QCOMPARE(int(VynUIQmlConstants::eqBandTypeForIndex(-1)), 65535);
    QCOMPARE(VynUIQmlConstants::eqBandTypeStringForIndex(6), QString());
    QCOMPARE(VynUIQmlConstants::eqBandTypeStringForIndex(-4), QString());
    QCOMPARE(VynUIQmlConstants::eqIndexForBandType(VynEQTypeThru), -1);
    QCOMPARE(VynUIQmlConstants::eqIndexForBandType(VynEQTypeNone), -1);
    QCOMPARE(VynUIQmlConstants::eqIndexForBandType(VynEQBandType(42)), -1);
}

void tst_QmlConstants::eqImageUrls()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    {
        QFile file(dir.filePath("btnBell48.png"));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const QStringList saved = VynFileUtils::imageSearchPaths();
    VynFileUtils::setImageSearchPaths({":/nowhere", dir.path() + "/"});

    using namespace VynEQConstants;
    // A found file answers its folder; a missing one the first folder.
    QCOMPARE(VynUIQmlConstants::imageUrlForEQBandType(VynEQTypeBell, 50),
             QUrl::fromLocalFile(dir.filePath("btnBell48.png")).toString());
    QCOMPARE(VynUIQmlConstants::imageUrlForEQBandType(VynEQTypeBell, 50.01),
             QStringLiteral("qrc:/nowhere/btnBell.png"));
    QCOMPARE(VynUIQmlConstants::imageUrlForEQBandType(VynEQTypeNotch, 12),
             QStringLiteral("qrc:/nowhere/btnNotch48.png"));
    QCOMPARE(VynUIQmlConstants::imageUrlForEQBandType(VynEQTypeThru, 12), QString());

    const QStringList urls = VynUIQmlConstants::imageUrlsForEQTypeSelector();
    QCOMPARE(urls.size(), kVynEQSuggestionsCount);
    for (int i = 0; i < kVynEQSuggestionsCount; ++i)
        QCOMPARE(urls.at(i),
                 QStringLiteral("qrc:/nowhere/%1Mac.png").arg(kVynEQSuggestions[i].name));
    QCOMPARE(VynUIQmlConstants::imageUrlsForEQTypeSelector(VynColorUtils::VynStyleLight), urls);

    VynFileUtils::setImageSearchPaths({});
    QCOMPARE(VynFileUtils::pathForImageNamed("btnBell.png"), QString());
    VynFileUtils::setImageSearchPaths(saved);
    QCOMPARE(VynFileUtils::pathForImageNamed(QString()), QString());
}

void tst_QmlConstants::mimeTypes()
{
    const QList<QPair<QString, QString>> expected = {
        {VynUIQmlConstants::getMimeTypeOrla(), "application/koru-orla"},
        {VynUIQmlConstants::getMimeTypeQVariant(), "application/qvariant"},
        {VynUIQmlConstants::getMimeTypeVynGrouping(), "application/vyngrouping"},
        {VynUIQmlConstants::getMimeTypeVynGroupedObject(), "application/vyngroupedobject"},
        {VynUIQmlConstants::getMimeTypeVynGroup(), "text/vyngroup"},
        {VynUIQmlConstants::getMimeTypeVynZone(), "text/vynzone"},
        {VynUIQmlConstants::getMimeTypeVynDevicePrototype(), "text/vyndeviceprototype"},
        {VynUIQmlConstants::getMimeTypeVynChannelPrototype(), "text/vynchannelprototype"},
        {VynUIQmlConstants::getMimeTypeVynControlledObject(), "application/vyncontrolledobject"},
        {VynUIQmlConstants::getMimeTypeVynEQCommonEQ(), "text/vyneqcommoneq"},
        {VynUIQmlConstants::getMimeTypeVynScene(), "text/vynscene"},
        {VynUIQmlConstants::getMimeTypeVynNetworkMap(), "text/vynnetworkmap"},
        {VynUIQmlConstants::getMimeTypeVynScreenComposition(), "text/vynscreencomposition"},
        {VynUIQmlConstants::getMimeTypeUrls(), "text/uri-list"},
    };
    for (const auto& [got, want] : expected)
        QCOMPARE(got, want);
    QCOMPARE(VynUIQmlConstants::g_mimeTypeVynZone, QStringLiteral("text/vynzone"));
}

void tst_QmlConstants::geometryForwarders()
{
    using namespace VynViewUtils;
    // A lasso dragged up and left, cropped to the bounds.
    QCOMPARE(VynUIQmlConstants::cellsViewCroppedLassoRectangle(QRectF(50, 40, -60, -70),
                                                               QRectF(0, 0, 100, 100)),
             QRectF(0, 0, 50, 40));
    QVERIFY(VynUIQmlConstants::cellsViewCroppedLassoRectangle(QRectF(200, 200, 5, 5),
                                                              QRectF(0, 0, 100, 100))
                .isEmpty());
    QVERIFY(!VynUIQmlConstants::qRectFIntersectsRect(QRectF(0, 0, 10, 10), QRectF(10, 0, 5, 5)));
    QVERIFY(VynUIQmlConstants::qRectFIntersectsRect(QRectF(0, 0, 10, 10), QRectF(9, 0, 5, 5)));
    QCOMPARE(VynUIQmlConstants::qRectFUnited(QRectF(0, 0, 10, 10), QRectF(20, 5, 5, 10)),
             QRectF(0, 0, 25, 15));
    QCOMPARE(VynUIQmlConstants::alignmentsViewVynSideOrientation(VynSideLeft), Qt::Vertical);
    QCOMPARE(VynUIQmlConstants::alignmentsViewVynOrientationOther(Qt::Vertical), Qt::Horizontal);
    QCOMPARE(
        VynUIQmlConstants::alignmentsViewVynSideBoundsForRect(QRectF(1, 2, 3, 4), Qt::Vertical),
        vynSideBoundsMake(2, 6));
    QCOMPARE(VynUIQmlConstants::alignmentsViewQRectFOrthogonalDimensionForSide(QRectF(1, 2, 3, 4),
                                                                               VynSideBottom),
             6.0);
    const QRectF unrounded(1.5, 2.4, 3.5, -0.5);
    QCOMPARE(VynUIQmlConstants::alignmentsViewRoundedQRectF(unrounded), QRectF(2, 2, 4, -1));
    QCOMPARE(VynUIQmlConstants::cornersForSides(VynSide(VynSideLeft | VynSideTop)),
             VynCornerTopLeft);
}

void tst_QmlConstants::nativeTitleBar()
{
    VynUIQmlConstants::setNativeTitleBarColorForStyle(nullptr, VynColorUtils::VynStylePrefDark);

    QWindow window;
    VynUIQmlConstants::setNativeTitleBarColorForStyle(&window, VynColorUtils::VynStylePrefDark);
    const quintptr id = quintptr(window.winId());
    QCOMPARE(QtCommons::titlebarAppearance(id), QtCommons::TitlebarAppearance::Dark);
    VynUIQmlConstants::setNativeTitleBarColorForStyle(&window, VynColorUtils::VynStylePrefSystem);
    QCOMPARE(QtCommons::titlebarAppearance(id), QtCommons::TitlebarAppearance::Dark);
    VynUIQmlConstants::setNativeTitleBarColorForStyle(&window, VynColorUtils::VynStylePrefLight);
    QCOMPARE(QtCommons::titlebarAppearance(id), QtCommons::TitlebarAppearance::Light);

    // Any other integer leaves the title bar alone, as VynStylePrefSystem does.
    const QMetaMethod setter = VynUIQmlConstants::staticMetaObject.method(
        VynUIQmlConstants::staticMetaObject.indexOfMethod(
            "setNativeTitleBarColorForStyle(QWindow*,VynColorUtils::VynStylePreference)"));
    for (int raw : {-1, 3, std::numeric_limits<int>::max()}) {
        QVERIFY(
            invokeWith(setter,
                       {QVariant::fromValue<QWindow*>(&window),
                        enumValue(QMetaType::fromType<VynColorUtils::VynStylePreference>(), raw)})
                .isValid());
        QCOMPARE(QtCommons::titlebarAppearance(id), QtCommons::TitlebarAppearance::Light);
    }
}

void tst_QmlConstants::enumArgumentsOutOfRange_data()
{
    QTest::addColumn<int>("methodIndex");
    QTest::addColumn<int>("parameter");
    QTest::addColumn<int>("raw");
    QTest::addColumn<int>("equivalent");

    // Every member that takes an enumeration, every enumeration parameter, with integers
    // the enumeration does not name: each gives the answer of its documented named value.
    const int raws[] = {std::numeric_limits<int>::min(), -1, 0, 3, 5, 7, 64, 1000,
                        std::numeric_limits<int>::max()};
    const QMetaObject* meta = &VynUIQmlConstants::staticMetaObject;
    QSet<QByteArray> types;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        for (int p = 0; p < method.parameterCount(); ++p) {
            const QMetaType type = method.parameterMetaType(p);
            if (!(type.flags() & QMetaType::IsEnumeration))
                continue;
            const EnumRule* rule = enumRule(type);
            QVERIFY2(rule, type.name());
            types.insert(type.name());
            for (int raw : raws) {
                if (rule->named.contains(raw))
                    continue;
                QTest::addRow("%s/arg %d/%d", method.methodSignature().constData(), p, raw)
                    << i << p << raw << rule->equivalent(raw, method.name());
            }
        }
    }
    QCOMPARE(types.size(), int(std::size(kEnumRules)));
}

void tst_QmlConstants::enumArgumentsOutOfRange()
{
    QFETCH(int, methodIndex);
    QFETCH(int, parameter);
    QFETCH(int, raw);
    QFETCH(int, equivalent);

    const QMetaMethod method = VynUIQmlConstants::staticMetaObject.method(methodIndex);
    QList<QVariant> args;
    for (int p = 0; p < method.parameterCount(); ++p)
        args.append(neutralArgument(method.parameterMetaType(p)));
    const QMetaType type = method.parameterMetaType(parameter);

    args[parameter] = enumValue(type, raw);
    const QVariant answer = invokeWith(method, args);
    args[parameter] = enumValue(type, equivalent);
    const QVariant expected = invokeWith(method, args);
    QVERIFY(expected.isValid());
    QVERIFY2(sameAnswer(answer, expected), qPrintable(QDebug::toString(answer)));
}

void tst_QmlConstants::enumArgumentAnswers_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<QVariantList>("arguments");
    QTest::addColumn<QVariant>("expected");

    // Integers stand for the enumeration arguments, as in a document.
    const QRectF rect(1, 2, 30, 40);
    for (int raw : {0, 3, 7, -1, std::numeric_limits<int>::min()}) {
        QTest::addRow("other orientation of %d", raw)
            << QByteArray("alignmentsViewVynOrientationOther") << QVariantList{raw}
            << QVariant::fromValue(Qt::Vertical);
        QTest::addRow("size along %d", raw)
            << QByteArray("alignmentsViewQRectFSizeAlongOrientation") << QVariantList{rect, raw}
            << QVariant(30.0);
        QTest::addRow("line along %d", raw)
            << QByteArray("alignmentsViewQRectFForLine") << QVariantList{0.0, 10.0, 5.0, raw, 2.0}
            << QVariant(QRectF(0, 4, 10, 2));
    }
    QTest::newRow("other orientation of Vertical")
        << QByteArray("alignmentsViewVynOrientationOther") << QVariantList{2}
        << QVariant::fromValue(Qt::Horizontal);
    QTest::newRow("side orientation of -1")
        << QByteArray("alignmentsViewVynSideOrientation") << QVariantList{-1}
        << QVariant::fromValue(Qt::Horizontal);
    QTest::newRow("edge 64 reads the horizontal centre")
        << QByteArray("alignmentsViewQRectFOrthogonalDimensionForSide") << QVariantList{rect, 64}
        << QVariant(16.0);
    QTest::newRow("corners of -1") << QByteArray("cornersForSides") << QVariantList{-1}
                                   << QVariant::fromValue(VynViewUtils::VynCornerAllCorners);
    QTest::newRow("corners of Left|Top|64")
        << QByteArray("cornersForSides") << QVariantList{1 | 2 | 64}
        << QVariant::fromValue(VynViewUtils::VynCornerTopLeft);
    QTest::newRow("index of band type -3")
        << QByteArray("eqIndexForBandType") << QVariantList{-3} << QVariant(-1);
    QTest::newRow("font size past every size")
        << QByteArray("fontSize") << QVariantList{std::numeric_limits<int>::max(), 1.0}
        << QVariant(19);
}

void tst_QmlConstants::enumArgumentAnswers()
{
    QFETCH(QByteArray, member);
    QFETCH(QVariantList, arguments);
    QFETCH(QVariant, expected);

    const QVariant answer = callMember(member, arguments);
    QCOMPARE(answer.metaType(), expected.metaType());
    QCOMPARE(answer, expected);
}

void tst_QmlConstants::tickMarkChoice_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("minValue");
    QTest::addColumn<int>("maxValue");
    QTest::addColumn<int>("maxSpacing");
    QTest::addColumn<int>("entry");

    // 100 px over 60 dB: 2.5 dB steps are the first at 2 px (4 px); entries 6 to 9 stay
    // below 10 px (4, 8.5, 8.5, 8.5), entry 10 reaches 16.5.
    QTest::newRow("100 px, -60..0") << 100 << -60 << 0 << 10 << 9;
    QTest::newRow("range given downwards") << 100 << 0 << -60 << 10 << 9;
    // 1000 px: the first entry is already 4 px; entry 2 is 8.5 px, entry 3 16.5 px.
    QTest::newRow("1000 px") << 1000 << -60 << 0 << 10 << 2;
    // A wanted spacing of 0 stops one entry past the first spacing of 2 px.
    QTest::newRow("no spacing wanted") << 100 << -60 << 0 << 0 << 5;
    QTest::newRow("any spacing allowed") << 100 << -60 << 0 << 100000 << 15;
    // Ticks of entry 14 and 15 would be 0.5 px and 1 px: the last entry is the answer.
    QTest::newRow("too short for 2 px") << 100 << 0 << 10000 << 10 << 15;
    QTest::newRow("empty range") << 100 << -20 << -20 << 10 << 1;
    QTest::newRow("zero length") << 0 << -60 << 0 << 10 << 15;
    QTest::newRow("negative length") << -40 << -60 << 0 << 10 << 15;
    QTest::newRow("extreme range")
        << 100 << std::numeric_limits<int>::min() << std::numeric_limits<int>::max() << 10 << 15;
}

void tst_QmlConstants::tickMarkChoice()
{
    QFETCH(int, length);
    QFETCH(int, minValue);
    QFETCH(int, maxValue);
    QFETCH(int, maxSpacing);
    QFETCH(int, entry);

    const VynVUMeterConstants::VynVUMetreTickMarkConfig config =
        VynVUMeterConstants::tickMarksConfigForValues(length, minValue, maxValue, maxSpacing);
    QCOMPARE(config, VynVUMeterConstants::kVynVUMetreTickMarkConfigs[entry]);
    QCOMPARE(
        VynUIQmlConstants::vuMeterTickMarksConfigForValues(length, minValue, maxValue, maxSpacing),
        config);
}

void tst_QmlConstants::halfPixel_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("0.25 to even 0") << 0.25 << 0.0;
    QTest::newRow("0.75 to even 1") << 0.75 << 1.0;
    QTest::newRow("1.25 to even 1") << 1.25 << 1.0;
    QTest::newRow("1.75 to even 2") << 1.75 << 2.0;
    QTest::newRow("0.26") << 0.26 << 0.5;
    QTest::newRow("1.74") << 1.74 << 1.5;
    QTest::newRow("exact half") << 3.5 << 3.5;
    QTest::newRow("-0.75") << -0.75 << -1.0;
    QTest::newRow("-0.6") << -0.6 << -0.5;
    QTest::newRow("-1.3") << -1.3 << -1.5;
    QTest::newRow("infinity") << HUGE_VAL << HUGE_VAL;
}

void tst_QmlConstants::halfPixel()
{
    QFETCH(double, value);
    QFETCH(double, expected);
    QCOMPARE(VynVUMeterConstants::toNearestHalfPixel(value), expected);
    QVERIFY(std::isnan(VynVUMeterConstants::toNearestHalfPixel(std::nan(""))));
}

void tst_QmlConstants::singletonSharedByEngines()
{
    const QByteArray source = "import QtQml\nimport VynUI 1.2\n"
                              "QtObject { property QtObject constants: VynUIQmlConstants }";
    QObject* seen[2] = {nullptr, nullptr};
    for (QObject*& slot : seen) {
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
        QQmlComponent component(&engine);
        component.setData(source, QUrl());
        std::unique_ptr<QObject> root(component.create());
        QVERIFY2(root, qPrintable(component.errorString()));
        slot = root->property("constants").value<QObject*>();
        QCOMPARE(QJSEngine::objectOwnership(slot), QJSEngine::CppOwnership);
    }
    QCOMPARE(seen[0], VynUIQmlConstants::instance());
    QCOMPARE(seen[1], VynUIQmlConstants::instance());
    // Both engines are gone and the object is still alive and answering.
    QCOMPARE(callMetric("fontSize", {}), 13.0);
    QVERIFY(VynUIQmlConstants::instance()->metaObject()->inherits(&QObject::staticMetaObject));
}

namespace {

// The catalogue member and arguments each colour property of VynUIMetrics answers for a style.
struct MetricsColor
{
    const char* property;
    const char* member;
    QList<QVariant> (*args)(int style);
};

const MetricsColor kMetricsColors[] = {
    {"controlColor", "controlColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 0};
     }},
    {"controlColorOn", "controlColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 1};
     }},
    {"controlBorderColor", "controlBorderColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 0};
     }},
    {"controlBorderColorOn", "controlBorderColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 1};
     }},
    {"controlBorderRedColor", "controlBorderRedColorForStyle",
     [](int s) { return QList<QVariant>{s}; }},
    {"controlTextColor", "controlTextColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 0};
     }},
    {"controlTextColorOn", "controlTextColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 1};
     }},
    {"controlTouchOverColor", "controlTouchOverColorForStyle",
     [](int s) { return QList<QVariant>{s}; }},
    {"controlOffGradientColorStart", "controlOffGradientColorForStyle",
     [](int s) {
         return QList<QVariant>{0.0, s, true};
     }},
    {"controlOffGradientColorEnd", "controlOffGradientColorForStyle",
     [](int s) {
         return QList<QVariant>{1.0, s, true};
     }},
    {"controlOnGradientColorStart", "controlOnGradientColor",
     [](int) { return QList<QVariant>{0.0}; }},
    {"controlOnGradientColorMiddle", "controlOnGradientColor",
     [](int) { return QList<QVariant>{0.5}; }},
    {"controlOnGradientColorEnd", "controlOnGradientColor",
     [](int) { return QList<QVariant>{1.0}; }},
    {"controlMixedGradientColorStart", "controlMixedGradientColor",
     [](int) { return QList<QVariant>{0.0}; }},
    {"controlMixedGradientColorEnd", "controlMixedGradientColor",
     [](int) { return QList<QVariant>{1.0}; }},
    {"controlMixedTickColor", "controlMixedTickColor", [](int) { return QList<QVariant>{}; }},
    {"textViewBackgroundColor", "textViewBackgroundColorForStyle",
     [](int s) { return QList<QVariant>{s}; }},
    {"textViewTextColor", "textViewTextColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 0};
     }},
    {"textViewTextColorMixed", "textViewTextColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 1};
     }},
    {"textViewBorderColor", "textViewBorderColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 0, false};
     }},
    {"textViewBorderColorMixed", "textViewBorderColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 1, false};
     }},
    {"textViewBorderColorEditing", "textViewBorderColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 0, true};
     }},
    {"textViewBorderColorMixedEditing", "textViewBorderColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 1, true};
     }},
    {"labelColor", "labelColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 0};
     }},
    {"labelColorSecondary", "labelColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 1};
     }},
    {"labelColorTertiary", "labelColorForStyle",
     [](int s) {
         return QList<QVariant>{s, 2};
     }},
    {"popoverBackgroundColor", "popoverBackgroundColorForStyle",
     [](int s) { return QList<QVariant>{s}; }},
    {"popoverBorderColor", "popoverBorderColorForStyle", [](int s) { return QList<QVariant>{s}; }},
    {"colorIconShadowColor", "colorIconShadowColorForStyle",
     [](int s) { return QList<QVariant>{s}; }},
};

bool sameNumberOrAnswer(const QVariant& a, const QVariant& b)
{
    if (a.typeId() == QMetaType::Double && b.typeId() == QMetaType::Double &&
        std::isnan(a.toDouble()) && std::isnan(b.toDouble()))
        return true;
    return sameAnswer(a, b);
}

} // namespace

void tst_QmlConstants::metricsAnswerTheCatalogue_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("fontRatio");
    QTest::addColumn<int>("style");
    QTest::newRow("regular dark") << 2 << 1.0 << 1.0 << 1;
    QTest::newRow("mini light, apart ratios") << 0 << 1.5 << 2.0 << 0;
    QTest::newRow("extra large, fractional") << 4 << 0.75 << 1.25 << 1;
    QTest::newRow("size below the table, style below light") << -3 << 2.0 << 1.0 << -5;
    QTest::newRow("size past the table, style past dark") << 9 << 1.0 << 3.0 << 7;
    QTest::newRow("ratio not a number") << 1 << std::nan("") << 1.0 << 0;
    QTest::newRow("infinite font ratio") << 3 << 1.0 << qInf() << 1;
}

// Every property of a metrics object answers what the catalogue answers for its look: the
// metric of the same name at the ratio (the font ratio for font sizes), the colours as
// listed above. A property that neither rule covers fails the test.
void tst_QmlConstants::metricsAnswerTheCatalogue()
{
    QFETCH(int, size);
    QFETCH(double, ratio);
    QFETCH(double, fontRatio);
    QFETCH(int, style);
    VynUIMetrics* metrics = VynUIQmlConstants::metrics(size, ratio, fontRatio, style);
    QVERIFY(metrics);
    QCOMPARE(metrics->controlSize(), qBound(0, size, 4));
    QCOMPARE(metrics->style(), style <= 0 ? 0 : 1);

    const QMetaObject* meta = metrics->metaObject();
    const QMetaObject* catalogue = VynUIQmlConstants::instance()->metaObject();
    int metricsChecked = 0;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QByteArray name = property.name();
        if (name == "controlSize" || name == "ratio" || name == "fontRatio" || name == "style")
            continue;
        const QVariant actual = property.read(metrics);
        const auto color = std::find_if(std::begin(kMetricsColors), std::end(kMetricsColors),
                                        [&](const MetricsColor& c) { return name == c.property; });
        if (color != std::end(kMetricsColors)) {
            QVERIFY2(sameAnswer(actual, callMember(color->member, color->args(style))),
                     name.constData());
            continue;
        }
        int parameters = -1;
        for (int m = catalogue->methodOffset(); m < catalogue->methodCount(); ++m) {
            if (catalogue->method(m).name() == name)
                parameters = qMax(parameters, catalogue->method(m).parameterCount());
        }
        QVERIFY2(parameters >= 0, "no catalogue member answers " + name);
        const double r = name.contains("ontSize") ? fontRatio : ratio;
        const QList<QVariant> args = parameters == 2   ? QList<QVariant>{size, r}
                                     : parameters == 1 ? QList<QVariant>{r}
                                                       : QList<QVariant>{};
        const QVariant expected = callMember(name.constData(), args);
        QCOMPARE(actual.metaType(), expected.metaType());
        QVERIFY2(sameNumberOrAnswer(actual, expected),
                 name + ": " + actual.toString().toUtf8() + " != " + expected.toString().toUtf8());
        ++metricsChecked;
    }
    QVERIFY(metricsChecked > 250);
}

void tst_QmlConstants::metricsShared()
{
    VynUIMetrics* regular = VynUIQmlConstants::metrics(2, 1.0, 1.0, 1);
    QCOMPARE(regular->parent(), VynUIQmlConstants::instance());
    QCOMPARE(VynUIQmlConstants::metrics(2, 1.0, 1.0, 1), regular);
    // Looks that read the same rows share one object; others do not.
    QCOMPARE(VynUIQmlConstants::metrics(2, 1.0, 1.0, 5), regular);
    QCOMPARE(VynUIQmlConstants::metrics(2, -0.0, 1.0, 1),
             VynUIQmlConstants::metrics(2, 0.0, 1.0, 1));
    QCOMPARE(VynUIQmlConstants::metrics(9, 1.0, 1.0, 1),
             VynUIQmlConstants::metrics(4, 1.0, 1.0, 1));
    QCOMPARE(VynUIQmlConstants::metrics(2, std::nan(""), 1.0, 1),
             VynUIQmlConstants::metrics(2, -std::nan(""), 1.0, 1));
    QVERIFY(VynUIQmlConstants::metrics(2, 1.0, 1.0, 0) != regular);
    QVERIFY(VynUIQmlConstants::metrics(2, 1.0, 1.5, 1) != regular);
    QVERIFY(VynUIQmlConstants::metrics(3, 1.0, 1.0, 1) != regular);

    // A host animating a ratio gets objects that its engine collects once the cache is full.
    QObject* last = nullptr;
    for (int i = 0; i < 1100; ++i)
        last = VynUIQmlConstants::metrics(2, 10.0 + i / 1000.0, 1.0, 1);
    QCOMPARE(last->parent(), nullptr);
    delete last;
    QCOMPARE(VynUIQmlConstants::metrics(2, 1.0, 1.0, 1), regular);
}

void tst_QmlConstants::metricsFollowTheLook()
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport VynUI 1.2\n"
                      "VynItem { property real margin: vynMetrics.marginSpace;"
                      " property color label: vynMetrics.labelColor;"
                      " property int font: vynMetrics.fontSize }",
                      QUrl());
    std::unique_ptr<QObject> item(component.create());
    QVERIFY2(item, qPrintable(component.errorString()));
    QCOMPARE(item->property("margin").toDouble(), 8.0);
    QCOMPARE(item->property("font").toInt(), 13);
    QCOMPARE(item->property("label").value<QColor>(),
             VynUIQmlConstants::labelColorForStyle(VynColorUtils::VynStyleDark, 0));
    item->setProperty("vynControlSize", int(Large));
    QCOMPARE(item->property("margin").toDouble(), 16.0);
    QCOMPARE(item->property("font").toInt(), 15);
    item->setProperty("vynPixelRatio", 1.5);
    QCOMPARE(item->property("margin").toDouble(), 24.0);
    QCOMPARE(item->property("font").toInt(), 15);
    item->setProperty("vynPixelRatioFont", 2.0);
    QCOMPARE(item->property("font").toInt(), 30);
    item->setProperty("vynStyle", int(VynColorUtils::VynStyleLight));
    QCOMPARE(item->property("label").value<QColor>(),
             VynUIQmlConstants::labelColorForStyle(VynColorUtils::VynStyleLight, 0));
}

void tst_QmlConstants::registeredTypes()
{
    // The tick-mark record travels through QVariant under both its names; the band type
    // reaches the meta-type system through VynCommon.
    const QMetaType config = QMetaType::fromType<VynVUMeterConstants::VynVUMetreTickMarkConfig>();
    QCOMPARE(QMetaType::fromName("VynVUMetreTickMarkConfig"), config);
    QCOMPARE(QMetaType::fromName("VynVUMeterConstants::VynVUMetreTickMarkConfig"), config);
    QCOMPARE(QMetaType::fromName("VynEQConstants::VynEQBandType"),
             QMetaType::fromType<VynEQConstants::VynEQBandType>());

    const QVariant variant =
        QVariant::fromValue(VynVUMeterConstants::kVynVUMetreTickMarkConfigs[9]);
    const auto back = variant.value<VynVUMeterConstants::VynVUMetreTickMarkConfig>();
    QCOMPARE(back.primaryInterval, 25.0);
    QCOMPARE(back.secondaryInterval, 5.0);
    QCOMPARE(back.precision, 0);

    QCOMPARE(QByteArray(VynViewConstants::staticMetaObject.className()),
             QByteArray("VynViewConstants"));
}

void tst_QmlConstants::colorMembersPresent()
{
    // Every colour member QML documents call is invokable.
    const char* const names[] = {
        "colorFactoryCount",
        "liveModeButtonAlpha",
        "liveModeButtonTouchingAlpha",
        "zoneIconTouchingColor",
        "zoneIconShadowAlpha",
        "popoverButtonFillColor",
        "popoverButtonBorderColor",
        "colorFactory",
        "rgbColorFactoryIndex",
        "readableColorFactoryForStyle",
        "primaryColorFactoryForStyle",
        "secondaryColorFactoryForStyle",
        "tertiaryColorFactoryForStyle",
        "readableColorForStyle",
        "primaryColorForStyle",
        "secondaryColorForStyle",
        "tertiaryColorForStyle",
        "ledFillColorForState",
        "ledBorderColorForState",
        "ledGlowColorForState",
        "ledTextColor",
        "yellowSelectionColor",
        "controlBorderRedColorForStyle",
        "controlColorForStyle",
        "controlBorderColorForStyle",
        "controlFillColor",
        "controlOnGradientColor",
        "controlOnRedGradientColor",
        "controlMixedGradientColor",
        "controlOffGradientColorForStyle",
        "controlImageOnGradientColor",
        "controlImageOffGradientColor",
        "controlMixedTickColor",
        "controlTextColorForStyle",
        "flatButtonFillColorForStyle",
        "flatButtonBorderColorForStyle",
        "flatButtonTextColorForStyle",
        "flatButtonSeparatorColorForStyle",
        "templateButtonColorForStyle",
        "templateButtonTextColorForStyle",
        "inlineButtonColorForStyle",
        "toolbarButtonColorForStyle",
        "toolbarButtonTextColorForStyle",
        "controlTouchOverColorForStyle",
        "textViewTextColorForStyle",
        "textViewBorderColorForStyle",
        "bridgeIconColorForStyle",
        "badgeNewColorForStyle",
        "liveModeButtonColor",
        "liveModeButtonBackgroundColor",
        "liveModeButtonFillColor",
        "logRecordButtonColor",
        "zoneIconFillColor",
        "patchAnchorColor",
        "patchLineNormalGradientColor",
        "patchLineExpectingGradientColor",
        "patchLineMultipleGradientColor",
        "patchDestructiveColor",
        "viewBackgroundColorForStyle",
        "textViewBackgroundColorForStyle",
        "tableViewBackgroundColorForStyle",
        "tableViewBorderColorForStyle",
        "tableSectionBackgroundColorForStyle",
        "tableSectionBorderColorForStyle",
        "borderViewBackgroundColorForStyle",
        "popoverBackgroundColorForStyle",
        "popoverBorderColorForStyle",
        "popoverShadowColorForStyle",
        "tableViewCellBackgroundColorForStyle",
        "tableViewCellBackgroundColorForTintAndStyle",
        "tableViewCellRedOverlayColorForStyle",
        "labelColorForStyle",
        "coloredLabelColorForStyle",
        "lineViewColorForStyle",
        "splitViewLineColorForStyle",
        "viewListButtonTitleColorForStyle",
        "viewListHeaderLineColorForStyle",
        "viewListHeaderLineShadowColorForStyle",
        "windowBackgroundColorForStyle",
        "windowBorderColorForStyle",
        "colorIconShadowColorForStyle",
        "colorIconBorderColorForStyle",
        "tableLabelColorForStyle",
        "tableTintedLabelColorForStyle",
        "popupBackgroundColorForStyle",
        "backgroundColorsWithStops",
        "backgroundColorsForStyleWithStops",
        "backgroundColorsExtremeForStyleWithStops",
        "circularUpdateTrackColor",
        "networkMapBackgroundColorForStyle",
        "networkMapShadowColorForStyle",
        "mapImageGridColor",
        "mapImageMissingColorForStyle",
        "mapImageAnchorFillColorForStyle",
        "mapImageAnchorBorderColorForStyle",
        "networkPhantomCellFillColorForStyle",
        "networkPhantomCellBorderColorForStyle",
        "networkOutOfContainerFocusColorForStyle",
        "networkCellBackgroundColorForStyle",
        "networkCellBorderColorForStyle",
        "networkCellSelectedBorderColorForStyle",
        "networkCellEvenColorForStyle",
        "networkCellOddColorForStyle",
        "lassoBorderColorForStyle",
        "lassoFillColorForStyle",
        "taskButtonColorForStyle",
        "alignmentGuideColorForStyle",
        "tuningBorderViewBackgroundColorForStyle",
        "screenCompositionBorderColorForStyle",
        "tuningHeaderBackgroundColorForStyle",
        "tuningStatusLabelColorForStyle",
        "tuningStatusWarningColorForStyle",
        "tuningProductLabelColorForStyle",
        "tuningGlobalViewBackgroundColorForStyle",
        "vuMeterBorderColor",
        "vuMeterFillColor",
        "vuMeterTickMarkColor",
        "eqThumbnailOnBkgGradientColorForStyle",
        "eqThumbnailOffBkgGradientColorForStyle",
        "eqThumbnailMixedBkgGradientColorForStyle",
        "eqThumbColorForStyle",
        "eqTypeCurveColorForStyle",
        "eqCurveGradientColorForStyle",
        "eqThumbnailGridColorsForStyle",
        "eqThumbnailLeftTextColor",
        "eqThumbnailLeftBkgOnColor",
        "eqThumbnailLeftBkgOffColor",
        "eqThumbnailLeftBkgMixedColor",
        "eqThumbnailRightOnColorsForStyle",
        "eqThumbnailRightOffColorsForStyle",
        "eqThumbnailRightMixedColorsForStyle",
        "eqThumbnailEmptyColor",
        "eqThumbnailBorderColorForStyle",
        "eqGraphArrayEQFillColorsForStyle",
        "eqGraphArrayEQBorderColorsForStyle",
        "eqGraphLabelColorForStyle",
        "eqGraphAxisMainColorForStyle",
        "eqGraphAxisSecondaryColorForStyle",
        "eqGraphBackgroundGradientColor",
        "recapHeaderGradientColor",
        "graphBackgroundTransformedColor",
        "graphThumbLabelBackgroundTransformedColor",
        "barGraphPercentTransformedColor",
        "barGraphHighlightTransformedColor",
        "logGraphInfoColor",
        "logGraphMarkColor",
        "logGraphAxisColor",
        "logGraphLabelColor",
        "logGraphLabelShadowColor",
        "logGraphInfoNoGraphColor",
        "logTimeSliderBreakColor",
        "logTimeSliderLabelColor",
        "logGraphBreakFillColor",
        "logGraphBreakBorderColor",
        "logKeyFactsTitleColor",
        "logGraphInfoColor2",
        "colorWithRGBAffineTransformA",
        "colorByIncreasingLuminosityWithScale",
        "colorBySettingBrightness",
        "colorBySettingAlpha",
        "colorByIncreasingSaturationWithScale",
        "colorBySettingSaturation",
        "colorWithColorAndMaxDistance",
        "noAlphaColorOverColor",
        "noAlphaColorWithAlpha",
        "colorByOverlayingColor",
        "contrastingColor",
        "contrastingColorLight",
        "blackOrWhiteContrastingColor",
        "blackOrWhiteContrastingColorExtreme",
        "colorWithRGBColor",
        "colorFromRGBColorString",
        "rgbColorFromColor",
        "rgbColorMake",
        "rgbColorZero",
        "glowColorWithAlpha",
        "styleForColor",
        "styleForColorExtreme",
        "vuMeterOffColor",
        "vuMeterOnColorForIndex",
        "vuMeterGlowColorForIndex",
        "vuMeterOnColorsCount",
    };
    QSet<QByteArray> invokables;
    const QMetaObject* meta = &VynUIQmlConstants::staticMetaObject;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
        invokables.insert(meta->method(i).name());
    for (const char* name : names)
        QVERIFY2(invokables.contains(name), name);
}

void tst_QmlConstants::colorForwarders_data()
{
    QTest::addColumn<QColor>("got");
    QTest::addColumn<QColor>("expected");

    using A = VynColorAppearance;
    using C = VynUIQmlConstants;
    const VynColorUtils::VynStyle light = VynColorUtils::VynStyleLight;
    const VynColorUtils::VynStyle dark = VynColorUtils::VynStyleDark;
    const QColor tint = QColor::fromRgbF(0.2f, 0.5f, 0.9f, 1.0f);

    // Left-out styles are Dark.
    QTest::newRow("labelColorForStyle()") << C::labelColorForStyle() << A::labelColorForStyle(dark);
    QTest::newRow("windowBackgroundColorForStyle()")
        << C::windowBackgroundColorForStyle() << A::windowBackgroundColorForStyle(dark);
    QTest::newRow("logGraphLabelColor()") << C::logGraphLabelColor() << A::logGraphLabelColor(dark);
    QTest::newRow("controlOffGradientColorForStyle(0.5)")
        << C::controlOffGradientColorForStyle(0.5) << A::controlOffGradientColorForStyle(0.5, dark);
    QTest::newRow("readableColorForStyle(tint)")
        << C::readableColorForStyle(tint) << A::readableColorForStyle(tint, dark);
    // Given arguments reach the rule in their places.
    QTest::newRow("labelColorForStyle(Light, 2)")
        << C::labelColorForStyle(light, 2) << A::labelColorForStyle(light, 2);
    QTest::newRow("controlColorForStyle(Light, on)")
        << C::controlColorForStyle(light, 1) << A::controlColorForStyle(light, 1);
    QTest::newRow("controlTextColorForStyle(Dark, mixed, default)")
        << C::controlTextColorForStyle(dark, 2, true) << A::controlTextColorForStyle(dark, 2, true);
    QTest::newRow("eqCurveGradientColorForStyle")
        << C::eqCurveGradientColorForStyle(light, 1, 2, 5)
        << A::eqCurveGradientColorForStyle(light, 1, 2, 5);
    QTest::newRow("networkCellBorderColorForStyle selected")
        << C::networkCellBorderColorForStyle(tint, light, true)
        << A::networkCellBorderColorForStyle(tint, light, true);
    QTest::newRow("eqGraphBackgroundGradientColor")
        << C::eqGraphBackgroundGradientColor(tint, light, 1)
        << A::eqGraphBackgroundGradientColor(tint, light, 1);
    QTest::newRow("vuMeterFillColor(Light)")
        << C::vuMeterFillColor(light) << A::vuMeterFillColor(light);
    QTest::newRow("glowColorWithAlpha")
        << C::glowColorWithAlpha(tint, 0.3) << VynColorUtils::glowColorWithAlpha(tint, 0.3);
    QTest::newRow("noAlphaColorWithAlpha")
        << C::noAlphaColorWithAlpha(tint, 0.5, Qt::white)
        << VynColorUtils::noAlphaColorWithAlpha(tint, 0.5, Qt::white);
}

void tst_QmlConstants::colorForwarders()
{
    QFETCH(QColor, got);
    QFETCH(QColor, expected);
    QVERIFY(got.isValid());
    QCOMPARE(got, expected);
}

void tst_QmlConstants::meterColors_data()
{
    QTest::addColumn<QColor>("got");
    QTest::addColumn<QColor>("expected");
    const auto rgb = [](double r, double g, double b) { return QColor::fromRgbF(r, g, b, 1); };
    const VynColorUtils::VynStyle light = VynColorUtils::VynStyleLight;
    const VynColorUtils::VynStyle dark = VynColorUtils::VynStyleDark;

    QTest::newRow("on 0") << VynUIQmlConstants::vuMeterOnColorForIndex(0) << rgb(0.55, 0.55, 0.55);
    QTest::newRow("on 21") << VynUIQmlConstants::vuMeterOnColorForIndex(21) << rgb(0.31, 0.57, 1);
    QTest::newRow("on 22") << VynUIQmlConstants::vuMeterOnColorForIndex(22) << rgb(0.78, 0.23, 1);
    QTest::newRow("on 31") << VynUIQmlConstants::vuMeterOnColorForIndex(31) << rgb(1, 0.1, 0.12);
    QTest::newRow("on past the top")
        << VynUIQmlConstants::vuMeterOnColorForIndex(500) << rgb(1, 0.1, 0.12);
    QTest::newRow("on negative is the top")
        << VynUIQmlConstants::vuMeterOnColorForIndex(-1) << rgb(1, 0.1, 0.12);
    QTest::newRow("glow light 1") << VynUIQmlConstants::vuMeterGlowColorForIndex(1, light)
                                  << rgb(0.56, 0.88, 1);
    QTest::newRow("glow dark 1") << VynUIQmlConstants::vuMeterGlowColorForIndex(1, dark)
                                 << rgb(0.36, 0.83, 1);
    QTest::newRow("glow default style")
        << VynUIQmlConstants::vuMeterGlowColorForIndex(30) << rgb(1, 0.33, 0.16);
    QTest::newRow("glow light top")
        << VynUIQmlConstants::vuMeterGlowColorForIndex(-7, light) << rgb(1, 0.57, 0.35);
    QTest::newRow("glow style past Dark")
        << VynUIQmlConstants::vuMeterGlowColorForIndex(0, VynColorUtils::VynStyle(7))
        << rgb(0.81, 0.81, 0.81);
    QTest::newRow("off light") << VynUIQmlConstants::vuMeterOffColor(light) << rgb(0.3, 0.3, 0.35);
    QTest::newRow("off default") << VynUIQmlConstants::vuMeterOffColor() << rgb(0.2, 0.2, 0.25);
}

void tst_QmlConstants::meterColors()
{
    QFETCH(QColor, got);
    QFETCH(QColor, expected);
    QCOMPARE(got, expected);
    QCOMPARE(VynUIQmlConstants::vuMeterOnColorsCount(), 32);
}

void tst_QmlConstants::styleForColor()
{
    QCOMPARE(VynUIQmlConstants::styleForColor(QColor::fromRgbF(0.5, 0.5, 0.5)),
             VynColorUtils::VynStyleDark);
    QCOMPARE(VynUIQmlConstants::styleForColor(QColor::fromRgbF(0.51, 0.51, 0.51)),
             VynColorUtils::VynStyleLight);
    // The extreme variant asks for the dark style only below 0.65 luminance.
    QCOMPARE(VynUIQmlConstants::styleForColorExtreme(QColor::fromRgbF(0.6, 0.6, 0.6)),
             VynColorUtils::VynStyleDark);
    QCOMPARE(VynUIQmlConstants::styleForColorExtreme(QColor::fromRgbF(0.7, 0.7, 0.7)),
             VynColorUtils::VynStyleLight);
}

QTEST_MAIN(tst_QmlConstants)
void tst_QmlConstants::derivedControlColors()
{
    using C = VynUIQmlConstants;
    for (const auto style : {VynColorUtils::VynStyleLight, VynColorUtils::VynStyleDark}) {
        QCOMPARE(C::popoverButtonFillColor(style), C::flatButtonFillColorForStyle(style, 0));
        QCOMPARE(C::popoverButtonBorderColor(style), C::flatButtonBorderColorForStyle(style, 0));
        const QColor tint = QColor::fromRgbF(0.2f, 0.6f, 0.9f);
        // Touching darkens the icon's fill and keeps its hue.
        const QColor fill = C::zoneIconFillColor(tint, style);
        const QColor touched = C::zoneIconTouchingColor(tint, style);
        QVERIFY(touched.valueF() < fill.valueF());
        QCOMPARE(touched.hsvHue(), fill.hsvHue());
    }
    QVERIFY(C::liveModeButtonTouchingAlpha() < C::liveModeButtonAlpha());
    QVERIFY(C::liveModeButtonAlpha() <= 1.0);
    QVERIFY(C::zoneIconShadowAlpha() > 0.0 && C::zoneIconShadowAlpha() < 1.0);
}

#include "tst_qmlconstants.moc"
