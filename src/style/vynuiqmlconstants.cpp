#include "vynuiqmlconstants.h"

#include <qtcommonsconstants.h>
#include <qtcommonstitlebar.h>
#include <vynfileutils.h>

#include <QJSEngine>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Rounds halves away from zero.
double rounded(double value)
{
    return std::round(value);
}

// Converts to an integer type, clamping to its range; NaN gives 0.
template <typename T> T clampedTo(double value)
{
    if (std::isnan(value))
        return T(0);
    constexpr double low = double(std::numeric_limits<T>::min());
    constexpr double high = double(std::numeric_limits<T>::max());
    if (value <= low)
        return std::numeric_limits<T>::min();
    if (value >= high)
        return std::numeric_limits<T>::max();
    return T(value);
}

int roundedInt(double value)
{
    return clampedTo<int>(std::round(value));
}

int truncatedInt(double value)
{
    return clampedTo<int>(std::trunc(value));
}

// The entry of a control-size row; sizes outside the row read its nearest end.
template <std::size_t N> double sizeRow(const double (&row)[N], VynViewUtils::VynControlSize size)
{
    const int index = std::clamp(int(size), 0, int(N) - 1);
    return row[index];
}

double bySize(VynViewUtils::VynControlSize size, double below, double at, double above)
{
    if (int(size) < VynViewUtils::VynControlSizeRegular)
        return below;
    if (int(size) == VynViewUtils::VynControlSizeRegular)
        return at;
    return above;
}

struct AxisLabel
{
    double position;
    const char* text;
};

constexpr AxisLabel kEQXLabels[] = {
    {20, "20"},   {50, "50"},   {100, "100"}, {200, "200"},   {500, "500"},
    {1000, "1k"}, {2000, "2k"}, {5000, "5k"}, {10000, "10k"}, {20000, "20k"},
};
constexpr AxisLabel kEQYLabels[] = {
    {-18, "-18"}, {-12, "-12"}, {-6, "-6"}, {0, "0"}, {6, "+6"}, {12, "+12"}, {18, "+18"},
};
constexpr AxisLabel kDynLabels[] = {
    {-60, "-60"}, {-50, "-50"}, {-40, "-40"}, {-30, "-30"}, {-20, "-20"}, {-10, "-10"}, {0, "0"},
};

template <std::size_t N> QVariantList labelList(const AxisLabel (&labels)[N])
{
    QVariantList list;
    list.reserve(int(N));
    for (const AxisLabel& label : labels) {
        VynViewUtils::VynGraphLabel graphLabel;
        graphLabel.position = label.position;
        graphLabel.text = QString::fromLatin1(label.text);
        list.append(QVariant::fromValue(graphLabel));
    }
    return list;
}

constexpr double kSlideFieldRates[] = {0.25, 1.0, 2.5, 4.0};
constexpr double kSlideFieldFroms[] = {0.0, 100.0, 200.0, 300.0};
constexpr QSizeF kAmpOutTopSizes[] = {{130.0, 170.0}, {150.0, 300.0}};
constexpr QSizeF kAmpOutBottomSizes[] = {{150.0, 175.0}, {170.0, 440.0}};

template <typename T, std::size_t N> const T& clampedEntry(const T (&table)[N], int index)
{
    return table[std::clamp(index, 0, int(N) - 1)];
}

// A meter level read as unsigned and limited to the top colour.
int meterLevel(int index)
{
    return int(std::min(uint(index), uint(VynVUMeterConstants::kVynVUMeterOnColorsCount - 1)));
}

bool isSuggestionIndex(int index)
{
    return index >= 0 && index < VynEQConstants::kVynEQSuggestionsCount;
}

} // namespace

const QString VynUIQmlConstants::g_mimeTypeOrla = QStringLiteral("application/koru-orla");
const QString VynUIQmlConstants::g_mimeTypeQVariant = QStringLiteral("application/qvariant");
const QString VynUIQmlConstants::g_mimeTypeVynGrouping = QStringLiteral("application/vyngrouping");
const QString VynUIQmlConstants::g_mimeTypeVynGroupedObject =
    QStringLiteral("application/vyngroupedobject");
const QString VynUIQmlConstants::g_mimeTypeVynGroup = QStringLiteral("text/vyngroup");
const QString VynUIQmlConstants::g_mimeTypeVynZone = QStringLiteral("text/vynzone");
const QString VynUIQmlConstants::g_mimeTypeVynDevicePrototype =
    QStringLiteral("text/vyndeviceprototype");
const QString VynUIQmlConstants::g_mimeTypeVynChannelPrototype =
    QStringLiteral("text/vynchannelprototype");
const QString VynUIQmlConstants::g_mimeTypeVynControlledObject =
    QStringLiteral("application/vyncontrolledobject");
const QString VynUIQmlConstants::g_mimeTypeVynEQCommonEQ = QStringLiteral("text/vyneqcommoneq");
const QString VynUIQmlConstants::g_mimeTypeVynScene = QStringLiteral("text/vynscene");
const QString VynUIQmlConstants::g_mimeTypeVynNetworkMap = QStringLiteral("text/vynnetworkmap");
const QString VynUIQmlConstants::g_mimeTypeVynScreenComposition =
    QStringLiteral("text/vynscreencomposition");
const QString VynUIQmlConstants::g_mimeTypeUrls = QStringLiteral("text/uri-list");

VynUIQmlConstants::VynUIQmlConstants(QObject* p_parent) : QObject(p_parent) {}

VynUIQmlConstants* VynUIQmlConstants::instance()
{
    static VynUIQmlConstants s_instance;
    return &s_instance;
}

VynUIQmlConstants* VynUIQmlConstants::create(QQmlEngine* p_qmlEngine, QJSEngine* p_jsEngine)
{
    Q_UNUSED(p_qmlEngine)
    Q_UNUSED(p_jsEngine)
    VynUIQmlConstants* constants = instance();
    QJSEngine::setObjectOwnership(constants, QJSEngine::CppOwnership);
    return constants;
}

// Generic helpers.

double VynUIQmlConstants::getConstantValue(double p_value, double p_ratio)
{
    return p_value * p_ratio;
}

float VynUIQmlConstants::getConstantValue(float p_value, double p_ratio)
{
    return p_value * float(p_ratio);
}

int VynUIQmlConstants::getConstantValue(int p_value, double p_ratio)
{
    return truncatedInt(double(p_value) * p_ratio);
}

uint VynUIQmlConstants::getConstantValue(uint p_value, double p_ratio)
{
    return clampedTo<uint>(std::trunc(double(p_value) * p_ratio));
}

QPointF VynUIQmlConstants::getConstantValueForPoint(const QPointF& p_point, double p_ratio)
{
    return QPointF(p_point.x() * p_ratio, p_point.y() * p_ratio);
}

QSizeF VynUIQmlConstants::getConstantValueForSize(const QSizeF& p_size, double p_ratio)
{
    return QSizeF(p_size.width() * p_ratio, p_size.height() * p_ratio);
}

QRectF VynUIQmlConstants::getConstantValueForRect(const QRectF& p_rect, double p_ratio)
{
    return QRectF(p_rect.x() * p_ratio, p_rect.y() * p_ratio, p_rect.width() * p_ratio,
                  p_rect.height() * p_ratio);
}

double VynUIQmlConstants::getRoundedConstantValue(double p_value, double p_ratio)
{
    return rounded(p_value * p_ratio);
}

float VynUIQmlConstants::getRoundedConstantValue(float p_value, double p_ratio)
{
    return std::round(p_value * float(p_ratio));
}

int VynUIQmlConstants::getRoundedConstantValue(int p_value, double p_ratio)
{
    return roundedInt(double(p_value) * p_ratio);
}

uint VynUIQmlConstants::getRoundedConstantValue(uint p_value, double p_ratio)
{
    return clampedTo<uint>(std::round(double(p_value) * p_ratio));
}

int VynUIQmlConstants::getSamplesValue(uint p_radius)
{
    return int(2 * std::min(p_radius, 32u) + 1);
}

int VynUIQmlConstants::fontSpaceWidth(int p_fontSize)
{
    if (p_fontSize <= 0)
        return 0;
    return clampedTo<int>(std::ceil(p_fontSize * 0.2477 - 0.0108));
}

int VynUIQmlConstants::colorIndexUser(double p_ratio)
{
    return roundedInt(p_ratio * 2147483647.0);
}

double VynUIQmlConstants::disabledAlpha()
{
    return 0.75;
}

double VynUIQmlConstants::offlineAlpha()
{
    return 0.62;
}

void VynUIQmlConstants::setNativeTitleBarColorForStyle(
    QWindow* p_window, VynColorUtils::VynStylePreference p_preference)
{
    if (!p_window)
        return;
    switch (p_preference) {
    case VynColorUtils::VynStylePrefDark:
        QtCommons::setDarkTitlebar(quintptr(p_window->winId()));
        break;
    case VynColorUtils::VynStylePrefLight:
        QtCommons::setLightTitlebar(quintptr(p_window->winId()));
        break;
    default:
        break;
    }
}

// Metrics.

// Control-size tables, in the order Mini, Small, Regular, Large (, ExtraLarge).
namespace {
constexpr double kFontSizeRow[] = {9.0, 11.0, 13.0, 15.0, 19.0};
constexpr double kFontSizeFlatButtonRow[] = {9.0, 11.0, 13.0, 15.0};
constexpr double kFontSizeInlineButtonRow[] = {9.0, 10.0, 12.0, 14.0};
constexpr double kFontSizePatchButtonRow[] = {8.0, 10.0, 12.0, 14.0};
constexpr double kMarginParentRow[] = {4.0, 8.0, 12.0, 16.0};
constexpr double kMarginSpaceRow[] = {2.0, 4.0, 8.0, 16.0};
constexpr double kPopoverGenericWidthRow[] = {175.0, 200.0, 240.0, 320.0};
constexpr double kZoneIconAllLineWidthRow[] = {1.0, 2.0, 3.0, 4.0};
constexpr double kZoneIconInsetsRow[] = {0.0, 1.0, 2.0, 4.0};
constexpr double kLedHeightRow[] = {9.0, 11.0, 13.0, 15.0, 20.0};
constexpr double kBezelButtonHeightRow[] = {15.0, 17.0, 21.0, 27.0};
constexpr double kBezelButtonMinWidthRow[] = {19.0, 22.0, 27.0, 32.0};
constexpr double kBezelButtonCornerRadiusRow[] = {2.0, 2.0, 3.0, 5.0};
constexpr double kBezelButtonTitleInsetsHRow[] = {4.0, 6.0, 7.0, 10.0};
constexpr double kBezelButtonIconInsetsHRow[] = {2.0, 2.0, 3.0, 6.0};
constexpr double kBezelButtonIconInsetsVRow[] = {0.0, 1.0, 1.0, 2.0};
constexpr double kBezelButtonTitleIconSpacingRow[] = {2.0, 4.0, 6.0, 8.0};
constexpr double kFlatButtonHeightRow[] = {16.0, 19.0, 24.0, 29.0, 36.0};
constexpr double kFlatButtonMinWidthRow[] = {18.0, 20.0, 25.0, 30.0};
constexpr double kFlatButtonCornerRadiusRow[] = {3.0, 3.5, 4.0, 5.0, 6.0};
constexpr double kFlatButtonTitleInsetsHRow[] = {3.0, 4.0, 6.0, 8.0};
constexpr double kFlatButtonIconInsetsHRow[] = {3.0, 4.0, 5.0, 8.0};
constexpr double kFlatButtonTitleIconSpacingRow[] = {2.0, 4.0, 6.0, 6.0};
constexpr double kViewListButtonHeightRow[] = {16.0, 19.0, 24.0, 29.0};
constexpr double kViewListButtonCornerRadiusRow[] = {3.0, 3.5, 4.0, 5.0};
constexpr double kViewListButtonTitleInsetsHRow[] = {3.0, 16.0, 7.0, 9.0};
constexpr double kViewListButtonImageInsetsVRow[] = {1.0, 2.0, 2.0, 3.0};
constexpr double kViewListButtonImageInsetsHRow[] = {2.0, 12.0, 4.0, 6.0};
constexpr double kViewListButtonCheckInsetsHRow[] = {2.0, 4.0, 4.0, 6.0};
constexpr double kCheckBoxHeightRow[] = {11.0, 13.0, 15.0, 17.0};
constexpr double kPopupButtonCornerRadiusRow[] = {2.0, 3.0, 4.0, 5.0};
constexpr double kPopupButtonInsetsHRow[] = {3.0, 4.0, 5.0, 7.0};
constexpr double kPopupButtonArrowHeightRow[] = {10.0, 12.0, 15.0, 20.0};
constexpr double kInlineButtonHeightRow[] = {11.0, 15.0, 18.0, 21.0};
constexpr double kTextFieldTextInsetsHRow[] = {3.0, 4.0, 5.0, 6.0};
constexpr double kTextFieldPanningIconInsetsLRow[] = {1.0, 1.0, 2.0, 3.0};
constexpr double kTextFieldPanningIconTextSpacingRow[] = {2.0, 3.0, 4.0, 5.0};
constexpr double kTextFieldUnitButtonTextSpacingRow[] = {1.0, 1.0, 1.0, 2.0};
constexpr double kTextFieldUnitButtonTitleInsetsHRow[] = {2.0, 2.0, 3.0, 4.0};
constexpr double kTextFieldLabelTextSpacingRow[] = {3.0, 5.0, 4.0, 6.0};
constexpr double kSliderTrackCornerRadiusRow[] = {1.0, 1.0, 1.0, 1.0};
constexpr double kSliderThumbWidthRow[] = {7.0, 8.0, 10.0, 12.0};
constexpr double kSliderThumbHeightRow[] = {15.0, 17.0, 20.0, 23.0};
constexpr double kSliderInsetsHRow[] = {0.0, 0.0, 0.0, 0.0};
constexpr double kVuMeterWidthRow[] = {9.0, 10.0, 12.0, 14.0};
constexpr double kVuMeterCursorWidthRow[] = {7.0, 7.0, 7.0, 7.0};
constexpr double kVuMeterCursorHeightRow[] = {12.0, 12.0, 12.0, 12.0};
constexpr double kVuMeterTickSecondaryOffsetRow[] = {0.5, 0.5, 1.0, 2.0};
constexpr double kVuMeterTickSecondaryWidthRow[] = {2.0, 2.5, 3.5, 5.0};
constexpr double kVuMeterTickPrimaryFontSizeRow[] = {7.0, 8.0, 9.0, 10.0};
} // namespace

int VynUIQmlConstants::fontSize(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return roundedInt(sizeRow(kFontSizeRow, p_controlSize) * p_ratio);
}

int VynUIQmlConstants::fontSizeFlatButton(VynViewUtils::VynControlSize p_controlSize,
                                          double p_ratio)
{
    return roundedInt(sizeRow(kFontSizeFlatButtonRow, p_controlSize) * p_ratio);
}

int VynUIQmlConstants::fontSizePopupButton(VynViewUtils::VynControlSize p_controlSize,
                                           double p_ratio)
{
    return roundedInt(sizeRow(kFontSizeFlatButtonRow, p_controlSize) * p_ratio);
}

int VynUIQmlConstants::fontSizeInlineButton(VynViewUtils::VynControlSize p_controlSize,
                                            double p_ratio)
{
    return roundedInt(sizeRow(kFontSizeInlineButtonRow, p_controlSize) * p_ratio);
}

int VynUIQmlConstants::fontSizePatchButton(VynViewUtils::VynControlSize p_controlSize,
                                           double p_ratio)
{
    return roundedInt(sizeRow(kFontSizePatchButtonRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::marginParent(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return rounded(sizeRow(kMarginParentRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::marginSpace(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return rounded(sizeRow(kMarginSpaceRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::popoverGenericWidth(VynViewUtils::VynControlSize p_controlSize,
                                              double p_ratio)
{
    return rounded(sizeRow(kPopoverGenericWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::zoneIconAllLineWidth(VynViewUtils::VynControlSize p_controlSize,
                                               double p_ratio)
{
    return rounded(sizeRow(kZoneIconAllLineWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::bezelButtonTitleInsetsV(VynViewUtils::VynControlSize p_controlSize,
                                                  double p_ratio)
{
    return rounded(sizeRow(kZoneIconAllLineWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::flatButtonTitleInsetsV(VynViewUtils::VynControlSize p_controlSize,
                                                 double p_ratio)
{
    return rounded(sizeRow(kZoneIconAllLineWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::flatButtonIconInsetsV(VynViewUtils::VynControlSize p_controlSize,
                                                double p_ratio)
{
    return rounded(sizeRow(kZoneIconAllLineWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::viewListButtonTitleInsetsV(VynViewUtils::VynControlSize p_controlSize,
                                                     double p_ratio)
{
    return rounded(sizeRow(kZoneIconAllLineWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::popupButtonInsetsV(VynViewUtils::VynControlSize p_controlSize,
                                             double p_ratio)
{
    return rounded(sizeRow(kZoneIconAllLineWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::zoneIconInsets(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return rounded(sizeRow(kZoneIconInsetsRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::toolbarButtonTitleIconSpacing(VynViewUtils::VynControlSize p_controlSize,
                                                        double p_ratio)
{
    return rounded(sizeRow(kZoneIconInsetsRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::ledHeight(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return rounded(sizeRow(kLedHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::bezelButtonHeight(VynViewUtils::VynControlSize p_controlSize,
                                            double p_ratio)
{
    return rounded(sizeRow(kBezelButtonHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::textFieldHeight(VynViewUtils::VynControlSize p_controlSize,
                                          double p_ratio)
{
    return rounded(sizeRow(kBezelButtonHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::bezelButtonMinWidth(VynViewUtils::VynControlSize p_controlSize,
                                              double p_ratio)
{
    return rounded(sizeRow(kBezelButtonMinWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::bezelButtonCornerRadius(VynViewUtils::VynControlSize p_controlSize,
                                                  double p_ratio)
{
    return sizeRow(kBezelButtonCornerRadiusRow, p_controlSize) * p_ratio;
}

double VynUIQmlConstants::bezelButtonTitleInsetsH(VynViewUtils::VynControlSize p_controlSize,
                                                  double p_ratio)
{
    return rounded(sizeRow(kBezelButtonTitleInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::bezelButtonIconInsetsH(VynViewUtils::VynControlSize p_controlSize,
                                                 double p_ratio)
{
    return rounded(sizeRow(kBezelButtonIconInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::bezelButtonIconInsetsV(VynViewUtils::VynControlSize p_controlSize,
                                                 double p_ratio)
{
    return rounded(sizeRow(kBezelButtonIconInsetsVRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::bezelButtonTitleIconSpacing(VynViewUtils::VynControlSize p_controlSize,
                                                      double p_ratio)
{
    return rounded(sizeRow(kBezelButtonTitleIconSpacingRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::flatButtonHeight(VynViewUtils::VynControlSize p_controlSize,
                                           double p_ratio)
{
    return rounded(sizeRow(kFlatButtonHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::flatButtonMinWidth(VynViewUtils::VynControlSize p_controlSize,
                                             double p_ratio)
{
    return rounded(sizeRow(kFlatButtonMinWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::flatButtonCornerRadius(VynViewUtils::VynControlSize p_controlSize,
                                                 double p_ratio)
{
    return sizeRow(kFlatButtonCornerRadiusRow, p_controlSize) * p_ratio;
}

double VynUIQmlConstants::flatButtonTitleInsetsH(VynViewUtils::VynControlSize p_controlSize,
                                                 double p_ratio)
{
    return rounded(sizeRow(kFlatButtonTitleInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::vuMeterTickPrimaryWidth(VynViewUtils::VynControlSize p_controlSize,
                                                  double p_ratio)
{
    return rounded(sizeRow(kFlatButtonTitleInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::flatButtonIconInsetsH(VynViewUtils::VynControlSize p_controlSize,
                                                double p_ratio)
{
    return rounded(sizeRow(kFlatButtonIconInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::flatButtonTitleIconSpacing(VynViewUtils::VynControlSize p_controlSize,
                                                     double p_ratio)
{
    return rounded(sizeRow(kFlatButtonTitleIconSpacingRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::viewListButtonHeight(VynViewUtils::VynControlSize p_controlSize,
                                               double p_ratio)
{
    return rounded(sizeRow(kViewListButtonHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::popupButtonHeight(VynViewUtils::VynControlSize p_controlSize,
                                            double p_ratio)
{
    return rounded(sizeRow(kViewListButtonHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::viewListButtonCornerRadius(VynViewUtils::VynControlSize p_controlSize,
                                                     double p_ratio)
{
    return sizeRow(kViewListButtonCornerRadiusRow, p_controlSize) * p_ratio;
}

double VynUIQmlConstants::viewListButtonTitleInsetsH(VynViewUtils::VynControlSize p_controlSize,
                                                     double p_ratio)
{
    return rounded(sizeRow(kViewListButtonTitleInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::viewListButtonImageInsetsV(VynViewUtils::VynControlSize p_controlSize,
                                                     double p_ratio)
{
    return rounded(sizeRow(kViewListButtonImageInsetsVRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::inlineButtonTitleImageSpacing(VynViewUtils::VynControlSize p_controlSize,
                                                        double p_ratio)
{
    return rounded(sizeRow(kViewListButtonImageInsetsVRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::vuMeterTickLeading(VynViewUtils::VynControlSize p_controlSize,
                                             double p_ratio)
{
    return rounded(sizeRow(kViewListButtonImageInsetsVRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::vuMeterTickLabelOffset(VynViewUtils::VynControlSize p_controlSize,
                                                 double p_ratio)
{
    return rounded(sizeRow(kViewListButtonImageInsetsVRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::viewListButtonImageInsetsH(VynViewUtils::VynControlSize p_controlSize,
                                                     double p_ratio)
{
    return rounded(sizeRow(kViewListButtonImageInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::viewListButtonCheckInsetsH(VynViewUtils::VynControlSize p_controlSize,
                                                     double p_ratio)
{
    return rounded(sizeRow(kViewListButtonCheckInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::checkBoxHeight(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return rounded(sizeRow(kCheckBoxHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::popupButtonCornerRadius(VynViewUtils::VynControlSize p_controlSize,
                                                  double p_ratio)
{
    return sizeRow(kPopupButtonCornerRadiusRow, p_controlSize) * p_ratio;
}

double VynUIQmlConstants::popupButtonInsetsH(VynViewUtils::VynControlSize p_controlSize,
                                             double p_ratio)
{
    return rounded(sizeRow(kPopupButtonInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::popupButtonArrowHeight(VynViewUtils::VynControlSize p_controlSize,
                                                 double p_ratio)
{
    return rounded(sizeRow(kPopupButtonArrowHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::inlineButtonHeight(VynViewUtils::VynControlSize p_controlSize,
                                             double p_ratio)
{
    return rounded(sizeRow(kInlineButtonHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::textFieldTextInsetsH(VynViewUtils::VynControlSize p_controlSize,
                                               double p_ratio)
{
    return rounded(sizeRow(kTextFieldTextInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::textFieldPanningIconInsetsL(VynViewUtils::VynControlSize p_controlSize,
                                                      double p_ratio)
{
    return rounded(sizeRow(kTextFieldPanningIconInsetsLRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::textFieldUnitButtonInsetsTBL(VynViewUtils::VynControlSize p_controlSize,
                                                       double p_ratio)
{
    return rounded(sizeRow(kTextFieldPanningIconInsetsLRow, p_controlSize) * p_ratio);
}

double
VynUIQmlConstants::textFieldPanningIconTextSpacing(VynViewUtils::VynControlSize p_controlSize,
                                                   double p_ratio)
{
    return rounded(sizeRow(kTextFieldPanningIconTextSpacingRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::sliderTrackHeight(VynViewUtils::VynControlSize p_controlSize,
                                            double p_ratio)
{
    return rounded(sizeRow(kTextFieldPanningIconTextSpacingRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::textFieldUnitButtonTextSpacing(VynViewUtils::VynControlSize p_controlSize,
                                                         double p_ratio)
{
    return rounded(sizeRow(kTextFieldUnitButtonTextSpacingRow, p_controlSize) * p_ratio);
}

double
VynUIQmlConstants::textFieldUnitButtonTitleInsetsH(VynViewUtils::VynControlSize p_controlSize,
                                                   double p_ratio)
{
    return rounded(sizeRow(kTextFieldUnitButtonTitleInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::textFieldLabelTextSpacing(VynViewUtils::VynControlSize p_controlSize,
                                                    double p_ratio)
{
    return rounded(sizeRow(kTextFieldLabelTextSpacingRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::sliderTrackCornerRadius(VynViewUtils::VynControlSize p_controlSize,
                                                  double p_ratio)
{
    return sizeRow(kSliderTrackCornerRadiusRow, p_controlSize) * p_ratio;
}

double VynUIQmlConstants::sliderThumbWidth(VynViewUtils::VynControlSize p_controlSize,
                                           double p_ratio)
{
    return rounded(sizeRow(kSliderThumbWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::sliderThumbHeight(VynViewUtils::VynControlSize p_controlSize,
                                            double p_ratio)
{
    return rounded(sizeRow(kSliderThumbHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::sliderInsetsH(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return rounded(sizeRow(kSliderInsetsHRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::vuMeterWidth(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return rounded(sizeRow(kVuMeterWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::vuMeterCursorWidth(VynViewUtils::VynControlSize p_controlSize,
                                             double p_ratio)
{
    return rounded(sizeRow(kVuMeterCursorWidthRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::vuMeterCursorHeight(VynViewUtils::VynControlSize p_controlSize,
                                              double p_ratio)
{
    return rounded(sizeRow(kVuMeterCursorHeightRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::vuMeterTickSecondaryOffset(VynViewUtils::VynControlSize p_controlSize,
                                                     double p_ratio)
{
    return rounded(sizeRow(kVuMeterTickSecondaryOffsetRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::vuMeterTickSecondaryWidth(VynViewUtils::VynControlSize p_controlSize,
                                                    double p_ratio)
{
    return rounded(sizeRow(kVuMeterTickSecondaryWidthRow, p_controlSize) * p_ratio);
}

int VynUIQmlConstants::vuMeterTickPrimaryFontSize(VynViewUtils::VynControlSize p_controlSize,
                                                  double p_ratio)
{
    return roundedInt(sizeRow(kVuMeterTickPrimaryFontSizeRow, p_controlSize) * p_ratio);
}

int VynUIQmlConstants::vuMeterTickSecondaryFontSize(VynViewUtils::VynControlSize p_controlSize,
                                                    double p_ratio)
{
    return roundedInt(sizeRow(kVuMeterTickPrimaryFontSizeRow, p_controlSize) * p_ratio);
}

double VynUIQmlConstants::marginWindow(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return rounded(bySize(p_controlSize, 10.0, 20.0, 20.0) * p_ratio);
}

double VynUIQmlConstants::marginPopover(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return rounded(bySize(p_controlSize, 5.0, 10.0, 20.0) * p_ratio);
}

double VynUIQmlConstants::colorIconHeight(VynViewUtils::VynControlSize p_controlSize,
                                          double p_ratio)
{
    return rounded(bySize(p_controlSize, 16.0, 22.0, 26.0) * p_ratio);
}

double VynUIQmlConstants::eqTypeIconHeight(VynViewUtils::VynControlSize p_controlSize,
                                           double p_ratio)
{
    return rounded(bySize(p_controlSize, 22.0, 27.0, 54.0) * p_ratio);
}

double VynUIQmlConstants::tableViewRowHeight(VynViewUtils::VynControlSize p_controlSize,
                                             double p_ratio)
{
    return rounded(bySize(p_controlSize, 20.0, 20.0, 40.0) * p_ratio);
}

double VynUIQmlConstants::buttonDropDownArrowWidth(VynViewUtils::VynControlSize p_controlSize,
                                                   double p_ratio)
{
    return rounded(bySize(p_controlSize, 5.0, 5.0, 8.0) * p_ratio);
}

double VynUIQmlConstants::buttonDropDownArrowHeight(VynViewUtils::VynControlSize p_controlSize,
                                                    double p_ratio)
{
    return rounded(bySize(p_controlSize, 3.0, 3.0, 4.0) * p_ratio);
}

double VynUIQmlConstants::tabButtonHeight(VynViewUtils::VynControlSize p_controlSize,
                                          double p_ratio)
{
    return rounded(bySize(p_controlSize, 31.0, 39.0, 39.0) * p_ratio);
}

double VynUIQmlConstants::switchButtonWidth(VynViewUtils::VynControlSize p_controlSize,
                                            double p_ratio)
{
    return rounded(bySize(p_controlSize, 37.0, 50.0, 50.0) * p_ratio);
}

double VynUIQmlConstants::switchButtonHeight(VynViewUtils::VynControlSize p_controlSize,
                                             double p_ratio)
{
    return rounded(bySize(p_controlSize, 18.0, 27.0, 27.0) * p_ratio);
}

double VynUIQmlConstants::circularProgressHeight(VynViewUtils::VynControlSize p_controlSize,
                                                 double p_ratio)
{
    return rounded(bySize(p_controlSize, 14.0, 16.0, 16.0) * p_ratio);
}

double VynUIQmlConstants::patchAnchorWidth(VynViewUtils::VynControlSize p_controlSize,
                                           double p_ratio)
{
    return rounded(bySize(p_controlSize, 6.0, 8.0, 8.0) * p_ratio);
}

double VynUIQmlConstants::circularProgressThickness(VynViewUtils::VynControlSize p_controlSize,
                                                    double p_ratio)
{
    return rounded(bySize(p_controlSize, 2.0, 2.0, 2.0) * p_ratio);
}

int VynUIQmlConstants::fontSizeTabButton(VynViewUtils::VynControlSize p_controlSize, double p_ratio)
{
    return roundedInt(bySize(p_controlSize, 15.0, 15.0, 15.0) * p_ratio);
}

double VynUIQmlConstants::zoneIconShadowBlur(double p_ratio)
{
    return rounded(3.0 * p_ratio);
}

double VynUIQmlConstants::zoneIconShadowOffsetW(double p_ratio)
{
    return rounded(0.0 * p_ratio);
}

double VynUIQmlConstants::zoneIconShadowOffsetH(double p_ratio)
{
    return rounded(0.0 * p_ratio);
}

double VynUIQmlConstants::popoverShadowBlur(double p_ratio)
{
    return rounded(12.0 * p_ratio);
}

double VynUIQmlConstants::popoverShadowOffsetW(double p_ratio)
{
    return rounded(0.0 * p_ratio);
}

double VynUIQmlConstants::popoverShadowOffsetH(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::popupShadowBlur(double p_ratio)
{
    return rounded(20.0 * p_ratio);
}

double VynUIQmlConstants::popupShadowOffsetW(double p_ratio)
{
    return rounded(0.0 * p_ratio);
}

double VynUIQmlConstants::popupShadowOffsetH(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeTitlePrimary(double p_ratio)
{
    return roundedInt(27.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeTitleSecondary(double p_ratio)
{
    return roundedInt(21.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeTitleTertiary(double p_ratio)
{
    return roundedInt(19.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeTitleQuaternary(double p_ratio)
{
    return roundedInt(15.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeEditorTitle(double p_ratio)
{
    return roundedInt(24.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeEditorDetail(double p_ratio)
{
    return roundedInt(13.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeCellTitle(double p_ratio)
{
    return roundedInt(12.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeCellDetail(double p_ratio)
{
    return roundedInt(10.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeRecordButton(double p_ratio)
{
    return roundedInt(24.0 * p_ratio);
}

int VynUIQmlConstants::fontSizePopoverTitle(double p_ratio)
{
    return roundedInt(13.0 * p_ratio);
}

int VynUIQmlConstants::fontSizePopoverButton(double p_ratio)
{
    return roundedInt(12.0 * p_ratio);
}

int VynUIQmlConstants::fontSizePopoverButtonSubtitle(double p_ratio)
{
    return roundedInt(10.0 * p_ratio);
}

int VynUIQmlConstants::fontSizePopoverLabel(double p_ratio)
{
    return roundedInt(11.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeLogTimeSliderLabel(double p_ratio)
{
    return roundedInt(10.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeLogTimeLabel(double p_ratio)
{
    return roundedInt(9.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeLogDayLabel(double p_ratio)
{
    return roundedInt(9.0 * p_ratio);
}

int VynUIQmlConstants::fontSizeLogYLabel(double p_ratio)
{
    return roundedInt(9.0 * p_ratio);
}

double VynUIQmlConstants::viewListDefaultSpacing(double p_ratio)
{
    return rounded(2.0 * p_ratio);
}

double VynUIQmlConstants::viewListAdditionalSpacing(double p_ratio)
{
    return rounded(4.0 * p_ratio);
}

double VynUIQmlConstants::viewListHeaderMarginTop(double p_ratio)
{
    return rounded(2.0 * p_ratio);
}

double VynUIQmlConstants::viewListHeaderMarginBottom(double p_ratio)
{
    return rounded(6.0 * p_ratio);
}

double VynUIQmlConstants::viewListHeaderLineViewSpacing(double p_ratio)
{
    return rounded(5.0 * p_ratio);
}

double VynUIQmlConstants::borderViewCornerRadius(double p_ratio)
{
    return 7.0 * p_ratio;
}

double VynUIQmlConstants::borderViewBorderSize(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::circularViewThickness(double p_ratio)
{
    return rounded(8.0 * p_ratio);
}

double VynUIQmlConstants::lineViewWidth(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::scrollBarWidth(double p_ratio)
{
    return rounded(6.0 * p_ratio);
}

double VynUIQmlConstants::popoverArrowSize(double p_ratio)
{
    return rounded(10.0 * p_ratio);
}

double VynUIQmlConstants::popoverCornerRadius(double p_ratio)
{
    return 7.0 * p_ratio;
}

double VynUIQmlConstants::popoverBorderWidth(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::colorIconBorder(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::colorIconMixedLineWidth(double p_ratio)
{
    return rounded(2.0 * p_ratio);
}

double VynUIQmlConstants::colorIconMixedLineOffset(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::ledBorder(double p_ratio)
{
    return rounded(0.5 * p_ratio);
}

double VynUIQmlConstants::ledMixedLineWidth(double p_ratio)
{
    return rounded(2.0 * p_ratio);
}

double VynUIQmlConstants::ledMixedLineDistance(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::ledGlowRadius(double p_ratio)
{
    return 6.0 * p_ratio;
}

double VynUIQmlConstants::ledGlowOffsetWidth(double p_ratio)
{
    return rounded(0.0 * p_ratio);
}

double VynUIQmlConstants::ledGlowOffsetHeight(double p_ratio)
{
    return rounded(0.0 * p_ratio);
}

double VynUIQmlConstants::badgeNewHeight(double p_ratio)
{
    return rounded(9.0 * p_ratio);
}

double VynUIQmlConstants::tableViewBorder(double p_ratio)
{
    return rounded(0.5 * p_ratio);
}

double VynUIQmlConstants::bezelButtonBorder(double p_ratio)
{
    return rounded(0.5 * p_ratio);
}

double VynUIQmlConstants::flatButtonBorder(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::viewListButtonBorder(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::setupButtonHeight(double p_ratio)
{
    return rounded(29.0 * p_ratio);
}

double VynUIQmlConstants::setupButtonInsetL(double p_ratio)
{
    return rounded(6.0 * p_ratio);
}

double VynUIQmlConstants::setupButtonInsetR(double p_ratio)
{
    return rounded(7.0 * p_ratio);
}

double VynUIQmlConstants::setupButtonImageSpacing(double p_ratio)
{
    return rounded(3.0 * p_ratio);
}

double VynUIQmlConstants::liveModeButtonHeight(double p_ratio)
{
    return rounded(31.0 * p_ratio);
}

double VynUIQmlConstants::recordButtonHeight(double p_ratio)
{
    return rounded(37.0 * p_ratio);
}

double VynUIQmlConstants::circularProgressBorder(double p_ratio)
{
    return rounded(0.5 * p_ratio);
}

double VynUIQmlConstants::textFieldPanningIconHeightMin(double p_ratio)
{
    return rounded(13.0 * p_ratio);
}

double VynUIQmlConstants::textFieldBorder(double p_ratio)
{
    return rounded(0.5 * p_ratio);
}

double VynUIQmlConstants::sliderTouchAreaOffset(double p_ratio)
{
    return rounded(14.0 * p_ratio);
}

double VynUIQmlConstants::sliderTrackingThreshold(double p_ratio)
{
    return rounded(3.0 * p_ratio);
}

double VynUIQmlConstants::sliderMaxDistancePerSecond(double p_ratio)
{
    return rounded(200.0 * p_ratio);
}

double VynUIQmlConstants::sliderMaxAnglePerSecond(double p_ratio)
{
    return rounded(150.0 * p_ratio);
}

double VynUIQmlConstants::sliderThumbBorder(double p_ratio)
{
    return rounded(0.5 * p_ratio);
}

double VynUIQmlConstants::sliderTickSize(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::vuMeterBorder(double p_ratio)
{
    return rounded(0.5 * p_ratio);
}

double VynUIQmlConstants::vuMeterCornerRadiusMin(double p_ratio)
{
    return rounded(2.0 * p_ratio);
}

double VynUIQmlConstants::vuMeterCornerRadiusMax(double p_ratio)
{
    return rounded(8.0 * p_ratio);
}

double VynUIQmlConstants::vuMeterMarginHMin(double p_ratio)
{
    return rounded(1.5 * p_ratio);
}

double VynUIQmlConstants::vuMeterMarginHMax(double p_ratio)
{
    return rounded(5.0 * p_ratio);
}

double VynUIQmlConstants::vuMeterMarginVMin(double p_ratio)
{
    return rounded(3.0 * p_ratio);
}

double VynUIQmlConstants::vuMeterMarginVMax(double p_ratio)
{
    return rounded(10.0 * p_ratio);
}

double VynUIQmlConstants::vuMeterCellHeightMin(double p_ratio)
{
    return rounded(2.0 * p_ratio);
}

double VynUIQmlConstants::vuMeterCellHeightMax(double p_ratio)
{
    return rounded(6.0 * p_ratio);
}

double VynUIQmlConstants::vuMeterTickPrimaryHeight(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::vuMeterTickSecondaryHeight(double p_ratio)
{
    return rounded(0.5 * p_ratio);
}

double VynUIQmlConstants::vuMeterGlowRadius(double p_ratio)
{
    return 6.0 * p_ratio;
}

double VynUIQmlConstants::eqThumbnailStandardWidth(double p_ratio)
{
    return rounded(92.0 * p_ratio);
}

double VynUIQmlConstants::eqThumbnailStandardHeight(double p_ratio)
{
    return rounded(55.0 * p_ratio);
}

double VynUIQmlConstants::dynThumbnailStandardWidth(double p_ratio)
{
    return rounded(64.0 * p_ratio);
}

double VynUIQmlConstants::dynThumbnailStandardHeight(double p_ratio)
{
    return rounded(55.0 * p_ratio);
}

double VynUIQmlConstants::typeThumbnailStandardWidth(double p_ratio)
{
    return rounded(64.0 * p_ratio);
}

double VynUIQmlConstants::typeThumbnailStandardHeight(double p_ratio)
{
    return rounded(34.0 * p_ratio);
}

double VynUIQmlConstants::graphThumbnailBorder(double p_ratio)
{
    return rounded(0.5 * p_ratio);
}

double VynUIQmlConstants::graphThumbnailCurveWidth(double p_ratio)
{
    return rounded(1.5 * p_ratio);
}

double VynUIQmlConstants::arrayEQsCurveWidth(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::graphViewMainAxisWidth(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::graphViewSecondaryAxisWidth(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::graphThumbIdleWidth(double p_ratio)
{
    return rounded(16.0 * p_ratio);
}

double VynUIQmlConstants::graphThumbPressedWidth(double p_ratio)
{
    return rounded(32.0 * p_ratio);
}

double VynUIQmlConstants::graphThumbIdleFontSize(double p_ratio)
{
    return rounded(10.0 * p_ratio);
}

double VynUIQmlConstants::graphThumbPressedFontSize(double p_ratio)
{
    return rounded(17.0 * p_ratio);
}

double VynUIQmlConstants::graphThumbIdleBorderWidth(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::graphThumbPressedBorderWidth(double p_ratio)
{
    return rounded(3.0 * p_ratio);
}

double VynUIQmlConstants::graphThumbPressedLineWidth(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::graphLabelFontSize(double p_ratio)
{
    return rounded(10.0 * p_ratio);
}

double VynUIQmlConstants::graphLabelMarginMain(double p_ratio)
{
    return rounded(5.0 * p_ratio);
}

double VynUIQmlConstants::graphLabelMarginSecondary(double p_ratio)
{
    return rounded(5.0 * p_ratio);
}

double VynUIQmlConstants::graphCurveWidth(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::graphSelectedCurveWidth(double p_ratio)
{
    return rounded(3.0 * p_ratio);
}

double VynUIQmlConstants::patchViewLineWidth(double p_ratio)
{
    return rounded(1.5 * p_ratio);
}

double VynUIQmlConstants::patchViewHighlightedLineWidth(double p_ratio)
{
    return rounded(1.5 * p_ratio);
}

double VynUIQmlConstants::patchViewNotHighlightedLineWidth(double p_ratio)
{
    return rounded(1.5 * p_ratio);
}

double VynUIQmlConstants::logGraphBreakLineWidth(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::logGraphAxisWidth(double p_ratio)
{
    return rounded(2.0 * p_ratio);
}

double VynUIQmlConstants::logGraphAxisShadowOffset(double p_ratio)
{
    return rounded(-1.0 * p_ratio);
}

double VynUIQmlConstants::logGraphMarkWidth(double p_ratio)
{
    return rounded(2.0 * p_ratio);
}

double VynUIQmlConstants::logGraphCurrentMarkWidth(double p_ratio)
{
    return rounded(6.0 * p_ratio);
}

double VynUIQmlConstants::logGraphBubbleLineWidth(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::logGraphBubbleWidth(double p_ratio)
{
    return rounded(176.0 * p_ratio);
}

double VynUIQmlConstants::logGraphBubbleHeight(double p_ratio)
{
    return rounded(56.0 * p_ratio);
}

double VynUIQmlConstants::logGraphBubbleRadius(double p_ratio)
{
    return 10.0 * p_ratio;
}

double VynUIQmlConstants::logGraphArrowWidth(double p_ratio)
{
    return rounded(12.0 * p_ratio);
}

double VynUIQmlConstants::logGraphArrowHeight(double p_ratio)
{
    return rounded(24.0 * p_ratio);
}

double VynUIQmlConstants::logGraphMarginTop(double p_ratio)
{
    return rounded(10.0 * p_ratio);
}

double VynUIQmlConstants::logGraphMarginBottom(double p_ratio)
{
    return rounded(5.0 * p_ratio);
}

double VynUIQmlConstants::logGraphMarginLeft(double p_ratio)
{
    return rounded(10.0 * p_ratio);
}

double VynUIQmlConstants::logGraphMarginRight(double p_ratio)
{
    return rounded(20.0 * p_ratio);
}

double VynUIQmlConstants::logLabelsMargin(double p_ratio)
{
    return rounded(10.0 * p_ratio);
}

double VynUIQmlConstants::logLabelsOffsetRight(double p_ratio)
{
    return rounded(10.0 * p_ratio);
}

double VynUIQmlConstants::logLabelsOffsetLeft(double p_ratio)
{
    return rounded(20.0 * p_ratio);
}

double VynUIQmlConstants::logTimeCursorMinWidth(double p_ratio)
{
    return rounded(27.0 * p_ratio);
}

double VynUIQmlConstants::logGraphYLabelWidth(double p_ratio)
{
    return rounded(30.0 * p_ratio);
}

double VynUIQmlConstants::logGraphYLabelMargin(double p_ratio)
{
    return rounded(4.0 * p_ratio);
}

double VynUIQmlConstants::logTipPadding(double p_ratio)
{
    return rounded(10.0 * p_ratio);
}

double VynUIQmlConstants::logTipMarginTop(double p_ratio)
{
    return rounded(5.0 * p_ratio);
}

double VynUIQmlConstants::logTipMarginLeft(double p_ratio)
{
    return rounded(10.0 * p_ratio);
}

double VynUIQmlConstants::logTipSepHeight(double p_ratio)
{
    return rounded(1.0 * p_ratio);
}

double VynUIQmlConstants::logTipSepMargin(double p_ratio)
{
    return rounded(2.0 * p_ratio);
}

double VynUIQmlConstants::logTipValueFrameHeight(double p_ratio)
{
    return rounded(18.0 * p_ratio);
}

double VynUIQmlConstants::logTipValueFrameInset(double p_ratio)
{
    return rounded(6.0 * p_ratio);
}

double VynUIQmlConstants::logGraphBreakWidth(double p_ratio)
{
    return rounded(8.0 * p_ratio);
}

double VynUIQmlConstants::logGraphCellDefaultHeight(double p_ratio)
{
    return rounded(161.0 * p_ratio);
}

double VynUIQmlConstants::logGraphMinMaxCurveWidth(double p_ratio)
{
    return rounded(1.5 * p_ratio);
}

double VynUIQmlConstants::logGraphAvgCurveWidth(double p_ratio)
{
    return rounded(0.5 * p_ratio);
}

double VynUIQmlConstants::imageToolBarButtonHeight(double p_ratio)
{
    return rounded(24.0 * p_ratio);
}

double VynUIQmlConstants::imageFooterButtonHeightDesktop(double p_ratio)
{
    return rounded(20.0 * p_ratio);
}

double VynUIQmlConstants::imageInlineHeightDesktop(double p_ratio)
{
    return rounded(14.0 * p_ratio);
}

double VynUIQmlConstants::imageAdditionalToolBarButtonHeightMobile(double p_ratio)
{
    return rounded(22.0 * p_ratio);
}

double VynUIQmlConstants::imageAdditionalNavigationButtonHeightMobile(double p_ratio)
{
    return rounded(24.0 * p_ratio);
}

double VynUIQmlConstants::imageAdditionalButtonHeightMobile(double p_ratio)
{
    return rounded(37.0 * p_ratio);
}

double VynUIQmlConstants::imageInButtonHeightDesktop(double p_ratio)
{
    return rounded(20.0 * p_ratio);
}

double VynUIQmlConstants::imageInButtonHeightMobile(double p_ratio)
{
    return rounded(24.0 * p_ratio);
}

double VynUIQmlConstants::imageInInlineButtonHeightDesktop(double p_ratio)
{
    return rounded(18.0 * p_ratio);
}

double VynUIQmlConstants::imageInInlineButtonHeightMobile(double p_ratio)
{
    return rounded(28.0 * p_ratio);
}

double VynUIQmlConstants::imageRoundButtonHeightDesktop(double p_ratio)
{
    return rounded(15.0 * p_ratio);
}

double VynUIQmlConstants::imageRoundButtonHeightMobile(double p_ratio)
{
    return rounded(20.0 * p_ratio);
}

double VynUIQmlConstants::imageProductHeight(double p_ratio)
{
    return rounded(16.0 * p_ratio);
}

double VynUIQmlConstants::imageInMenuHeightDesktop(double p_ratio)
{
    return rounded(20.0 * p_ratio);
}

double VynUIQmlConstants::imageInMenuHeightMobile(double p_ratio)
{
    return rounded(24.0 * p_ratio);
}

double VynUIQmlConstants::colorIconCornerRadiusRatio()
{
    return 0.2;
}

double VynUIQmlConstants::zoneIconKernRatio()
{
    return -0.2;
}

double VynUIQmlConstants::ledFontSizeRatio()
{
    return 0.7;
}

double VynUIQmlConstants::inlineButtonTitleInsetsHRatio()
{
    return 0.4;
}

double VynUIQmlConstants::inlineButtonImageInsetsHRatio()
{
    return 0.33;
}

double VynUIQmlConstants::textFieldPanningIconHeightRatio()
{
    return 0.9;
}

double VynUIQmlConstants::sliderYAttenuationFactor()
{
    return 150.0;
}

double VynUIQmlConstants::sliderWheelMinimizeFactor()
{
    return 5.0;
}

double VynUIQmlConstants::sliderWheelMaximizeFactor()
{
    return 5.0;
}

double VynUIQmlConstants::sliderThumbCornerRadiusRatio()
{
    return 0.2;
}

double VynUIQmlConstants::circularProgressHeightInsideButtonRatio()
{
    return 1.2;
}

double VynUIQmlConstants::vuMeterCornerRadiusRatio()
{
    return 0.3;
}

double VynUIQmlConstants::vuMeterMarginHRatio()
{
    return 0.1;
}

double VynUIQmlConstants::vuMeterMarginVRatio()
{
    return 0.4;
}

double VynUIQmlConstants::vuMeterCellHeightRatio()
{
    return 0.15;
}

double VynUIQmlConstants::vuMeterCellSpaceRatio()
{
    return 0.2;
}

double VynUIQmlConstants::eqThumbnailSizeRatio()
{
    return 1.67;
}

double VynUIQmlConstants::dynThumbnailSizeRatio()
{
    return 1.125;
}

double VynUIQmlConstants::typeThumbnailSizeRatio()
{
    return 1.88;
}

int VynUIQmlConstants::windowWidthTeskMain()
{
    return 800;
}

int VynUIQmlConstants::windowHeightTeskMain()
{
    return 600;
}

int VynUIQmlConstants::windowWidthOrlaMain()
{
    return 1240;
}

int VynUIQmlConstants::windowHeightOrlaMain()
{
    return 768;
}

int VynUIQmlConstants::windowWidthOrlaWelcome()
{
    return 481;
}

int VynUIQmlConstants::windowHeightOrlaWelcome()
{
    return 333;
}

int VynUIQmlConstants::windowWidthOrlaPresenter()
{
    return 940;
}

int VynUIQmlConstants::windowHeightOrlaPresenter()
{
    return 700;
}

int VynUIQmlConstants::windowWidthOrlaPreferences()
{
    return 640;
}

int VynUIQmlConstants::windowHeightOrlaPreferences()
{
    return 640;
}

int VynUIQmlConstants::windowWidthOrlaEQ()
{
    return 740;
}

int VynUIQmlConstants::windowHeightOrlaEQ()
{
    return 620;
}

int VynUIQmlConstants::windowWidthOrlaLogRecords()
{
    return 800;
}

int VynUIQmlConstants::windowHeightOrlaLogRecords()
{
    return 600;
}

int VynUIQmlConstants::windowWidthOrlaImportExport()
{
    return 860;
}

int VynUIQmlConstants::minWindowWidthOrlaMain()
{
    return 400;
}

int VynUIQmlConstants::minWindowHeightOrlaMain()
{
    return 180;
}

int VynUIQmlConstants::minSelectorWidthOrla()
{
    return 240;
}

int VynUIQmlConstants::minSelectorHeightOrla()
{
    return 180;
}

int VynUIQmlConstants::minEditorWidthOrla()
{
    return 540;
}

int VynUIQmlConstants::minEditorHeightOrla()
{
    return 450;
}

int VynUIQmlConstants::minInspectorWidthOrla()
{
    return 240;
}

int VynUIQmlConstants::minInspectorHeightOrla()
{
    return 180;
}

int VynUIQmlConstants::minAccessoryWindowWidthOrla()
{
    return 320;
}

int VynUIQmlConstants::minAccessoryWindowHeightOrla()
{
    return 320;
}

int VynUIQmlConstants::windowWidthOrlaLibrary()
{
    return 700;
}

int VynUIQmlConstants::windowHeightOrlaLibrary()
{
    return 440;
}

int VynUIQmlConstants::minWindowWidthOrlaLibrary()
{
    return 575;
}

int VynUIQmlConstants::minWindowHeightOrlaLibrary()
{
    return 200;
}

int VynUIQmlConstants::popoverWidthOrlaEQ()
{
    return 500;
}

int VynUIQmlConstants::popoverHeightOrlaEQ()
{
    return 440;
}

int VynUIQmlConstants::popoverWidthOrlaDyn()
{
    return 510;
}

int VynUIQmlConstants::popoverHeightOrlaDyn()
{
    return 400;
}

int VynUIQmlConstants::popoverWidthOrlaSetupScene()
{
    return 480;
}

int VynUIQmlConstants::popoverHeightOrlaSetupScene()
{
    return 400;
}

int VynUIQmlConstants::popoverWidthOrlaScreenCompEdit()
{
    return 510;
}

int VynUIQmlConstants::popoverHeightOrlaScreenCompEdit()
{
    return 320;
}

int VynUIQmlConstants::popoverWidthOrlaScreenCompIE()
{
    return 790;
}

int VynUIQmlConstants::popoverHeightOrlaScreenCompIE()
{
    return 360;
}

int VynUIQmlConstants::minControlAmpInHeightOrla(double p_ratio)
{
    return truncatedInt(100.0 * p_ratio);
}

int VynUIQmlConstants::standardControlAmpInHeightOrla(double p_ratio)
{
    return truncatedInt(140.0 * p_ratio);
}

int VynUIQmlConstants::standardControlKroInHeightOrla(double p_ratio)
{
    return truncatedInt(150.0 * p_ratio);
}

int VynUIQmlConstants::minControlAmpOutHeightOrla(double p_ratio)
{
    return truncatedInt(130.0 * p_ratio);
}

int VynUIQmlConstants::minSearchFieldWidthOrlaLibrary(double p_ratio)
{
    return truncatedInt(120.0 * p_ratio);
}

QString VynUIQmlConstants::getMimeTypeOrla()
{
    return g_mimeTypeOrla;
}

QString VynUIQmlConstants::getMimeTypeQVariant()
{
    return g_mimeTypeQVariant;
}

QString VynUIQmlConstants::getMimeTypeVynGrouping()
{
    return g_mimeTypeVynGrouping;
}

QString VynUIQmlConstants::getMimeTypeVynGroupedObject()
{
    return g_mimeTypeVynGroupedObject;
}

QString VynUIQmlConstants::getMimeTypeVynGroup()
{
    return g_mimeTypeVynGroup;
}

QString VynUIQmlConstants::getMimeTypeVynZone()
{
    return g_mimeTypeVynZone;
}

QString VynUIQmlConstants::getMimeTypeVynDevicePrototype()
{
    return g_mimeTypeVynDevicePrototype;
}

QString VynUIQmlConstants::getMimeTypeVynChannelPrototype()
{
    return g_mimeTypeVynChannelPrototype;
}

QString VynUIQmlConstants::getMimeTypeVynControlledObject()
{
    return g_mimeTypeVynControlledObject;
}

QString VynUIQmlConstants::getMimeTypeVynEQCommonEQ()
{
    return g_mimeTypeVynEQCommonEQ;
}

QString VynUIQmlConstants::getMimeTypeVynScene()
{
    return g_mimeTypeVynScene;
}

QString VynUIQmlConstants::getMimeTypeVynNetworkMap()
{
    return g_mimeTypeVynNetworkMap;
}

QString VynUIQmlConstants::getMimeTypeVynScreenComposition()
{
    return g_mimeTypeVynScreenComposition;
}

QString VynUIQmlConstants::getMimeTypeUrls()
{
    return g_mimeTypeUrls;
}

QString VynUIQmlConstants::localizedString(const QString& p_key, const QString& p_table)
{
    return QtCommonsConstants::qLocalizedString(p_key, p_table);
}

// Slide field and amplifier output sizes.

int VynUIQmlConstants::slideFieldZoneCount(double p_ratio)
{
    return roundedInt(4.0 * p_ratio);
}

double VynUIQmlConstants::slideFieldRate(int p_index, double p_ratio)
{
    return p_ratio * clampedEntry(kSlideFieldRates, p_index);
}

double VynUIQmlConstants::slideFieldFrom(int p_index, double p_ratio)
{
    return p_ratio * clampedEntry(kSlideFieldFroms, p_index);
}

QSizeF VynUIQmlConstants::minControlAmpOutTopSizeOrla(VynViewUtils::VynControlSize p_controlSize,
                                                      double p_ratio)
{
    return clampedEntry(kAmpOutTopSizes, int(p_controlSize)) * p_ratio;
}

QSizeF VynUIQmlConstants::minControlAmpOutBottomSizeOrla(VynViewUtils::VynControlSize p_controlSize,
                                                         double p_ratio)
{
    return clampedEntry(kAmpOutBottomSizes, int(p_controlSize)) * p_ratio;
}

// Graph axis labels.

QVariantList VynUIQmlConstants::eqXLabels()
{
    return labelList(kEQXLabels);
}

QVariantList VynUIQmlConstants::eqYLabels()
{
    return labelList(kEQYLabels);
}

QVariantList VynUIQmlConstants::dynXLabels()
{
    return labelList(kDynLabels);
}

QVariantList VynUIQmlConstants::dynYLabels()
{
    return labelList(kDynLabels);
}

// EQ band types.

VynEQConstants::VynEQBandType VynUIQmlConstants::eqBandTypeForIndex(int p_index)
{
    if (!isSuggestionIndex(p_index))
        return VynEQConstants::VynEQTypeNone;
    return VynEQConstants::kVynEQSuggestions[p_index].type;
}

int VynUIQmlConstants::eqIndexForBandType(VynEQConstants::VynEQBandType p_type)
{
    for (int i = 0; i < VynEQConstants::kVynEQSuggestionsCount; ++i) {
        if (VynEQConstants::kVynEQSuggestions[i].type == p_type)
            return i;
    }
    return -1;
}

QString VynUIQmlConstants::eqBandTypeStringForIndex(int p_index)
{
    if (!isSuggestionIndex(p_index))
        return QString();
    return QString::fromLatin1(VynEQConstants::kVynEQSuggestions[p_index].name);
}

QString VynUIQmlConstants::imageUrlForEQBandType(VynEQConstants::VynEQBandType p_type,
                                                 double p_contentHeight)
{
    const int index = eqIndexForBandType(p_type);
    if (index < 0)
        return QString();
    static const QString s_pattern = QStringLiteral("btn%1");
    QString name = s_pattern.arg(eqBandTypeStringForIndex(index));
    if (p_contentHeight <= 50.0)
        name += QStringLiteral("48");
    name += QStringLiteral(".png");
    return VynFileUtils::pathForImageNamed(name);
}

QStringList VynUIQmlConstants::imageUrlsForEQTypeSelector(VynColorUtils::VynStyle p_style)
{
    Q_UNUSED(p_style)
    QStringList urls;
    urls.reserve(VynEQConstants::kVynEQSuggestionsCount);
    for (int i = 0; i < VynEQConstants::kVynEQSuggestionsCount; ++i) {
        urls.append(VynFileUtils::pathForImageNamed(eqBandTypeStringForIndex(i) +
                                                    QStringLiteral("Mac.png")));
    }
    return urls;
}

// Geometry.

QRectF VynUIQmlConstants::cellsViewCroppedLassoRectangle(const QRectF& p_lasso,
                                                         const QRectF& p_bounds)
{
    return p_lasso.normalized().intersected(p_bounds.normalized());
}

bool VynUIQmlConstants::qRectFIntersectsRect(const QRectF& p_rect1, const QRectF& p_rect2)
{
    return p_rect1.intersects(p_rect2);
}

bool VynUIQmlConstants::qRectFStrictlyIntersectsRect(const QRectF& p_rect1, const QRectF& p_rect2)
{
    return VynViewUtils::qRectFStrictlyIntersectsRect(p_rect1, p_rect2);
}

bool VynUIQmlConstants::qRectFContainsQPoint(const QRectF& p_rect, const QPointF& p_point)
{
    return VynViewUtils::qRectFContainsQPoint(p_rect, p_point);
}

QRectF VynUIQmlConstants::qRectFUnited(const QRectF& p_rect1, const QRectF& p_rect2)
{
    return p_rect1.united(p_rect2);
}

Qt::Orientation VynUIQmlConstants::alignmentsViewVynSideOrientation(VynViewUtils::VynSide p_side)
{
    return VynViewUtils::vynSideOrientation(p_side);
}

Qt::Orientation VynUIQmlConstants::alignmentsViewVynOrientationOther(Qt::Orientation p_orientation)
{
    return VynViewUtils::vynOrientationOther(p_orientation);
}

VynViewUtils::VynSideBounds
VynUIQmlConstants::alignmentsViewVynSideBoundsForRect(const QRectF& p_rect,
                                                      Qt::Orientation p_orientation)
{
    return VynViewUtils::vynSideBoundsForRect(p_rect, p_orientation);
}

double
VynUIQmlConstants::alignmentsViewQRectFOrthogonalDimensionForSide(const QRectF& p_rect,
                                                                  VynViewUtils::VynSide p_side)
{
    return VynViewUtils::qRectFOrthogonalDimensionForSide(p_rect, p_side);
}

double VynUIQmlConstants::alignmentsViewQRectFSizeAlongOrientation(const QRectF& p_rect,
                                                                   Qt::Orientation p_orientation)
{
    return VynViewUtils::qRectFSizeAlongOrientation(p_rect, p_orientation);
}

QRectF VynUIQmlConstants::alignmentsViewRoundedQRectF(const QRectF& p_rect)
{
    QRectF rect = p_rect;
    return VynViewUtils::roundedQRectF(rect);
}

QRectF VynUIQmlConstants::alignmentsViewQRectFForLine(double p_start, double p_end,
                                                      double p_position,
                                                      Qt::Orientation p_orientation,
                                                      double p_thickness)
{
    return VynViewUtils::qRectFForLine(p_start, p_end, p_position, p_orientation, p_thickness);
}

VynViewUtils::VynCorner VynUIQmlConstants::cornersForSides(VynViewUtils::VynSide p_sides)
{
    return VynViewUtils::vynCornersForSides(p_sides);
}

// Level meters.

VynVUMeterConstants::VynVUMetreTickMarkConfig
VynUIQmlConstants::vuMeterTickMarksConfigForValues(int p_actualCellsLength, int p_minValue,
                                                   int p_maxValue, int p_actualDistanceBetweenTicks)
{
    return VynVUMeterConstants::tickMarksConfigForValues(p_actualCellsLength, p_minValue,
                                                         p_maxValue, p_actualDistanceBetweenTicks);
}

// Colours.

VynColorUtils::VynStyle VynUIQmlConstants::styleForColor(const QColor& p_color)
{
    return VynColorUtils::backgroundStyle(p_color);
}

VynColorUtils::VynStyle VynUIQmlConstants::styleForColorExtreme(const QColor& p_color)
{
    return VynColorUtils::backgroundStyleExtreme(p_color);
}

// Colours, forwarded to VynColorAppearance.

int VynUIQmlConstants::colorFactoryCount()
{
    return VynColorAppearance::colorFactoryCount();
}

QColor VynUIQmlConstants::colorFactory(int p_index)
{
    return VynColorAppearance::colorFactory(p_index);
}

VynRGBColor VynUIQmlConstants::rgbColorFactoryIndex(int p_index)
{
    return VynColorAppearance::rgbColorFactoryIndex(p_index);
}

QColor VynUIQmlConstants::readableColorFactoryForStyle(int p_index, VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::readableColorFactoryForStyle(p_index, p_style);
}

QColor VynUIQmlConstants::primaryColorFactoryForStyle(int p_index, VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::primaryColorFactoryForStyle(p_index, p_style);
}

QColor VynUIQmlConstants::secondaryColorFactoryForStyle(int p_index,
                                                        VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::secondaryColorFactoryForStyle(p_index, p_style);
}

QColor VynUIQmlConstants::tertiaryColorFactoryForStyle(int p_index, VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::tertiaryColorFactoryForStyle(p_index, p_style);
}

QColor VynUIQmlConstants::readableColorForStyle(const QColor& p_color,
                                                VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::readableColorForStyle(p_color, p_style);
}

QColor VynUIQmlConstants::primaryColorForStyle(const QColor& p_color,
                                               VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::primaryColorForStyle(p_color, p_style);
}

QColor VynUIQmlConstants::secondaryColorForStyle(const QColor& p_color,
                                                 VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::secondaryColorForStyle(p_color, p_style);
}

QColor VynUIQmlConstants::tertiaryColorForStyle(const QColor& p_color,
                                                VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::tertiaryColorForStyle(p_color, p_style);
}

QColor VynUIQmlConstants::ledFillColorForState(int p_state)
{
    return VynColorAppearance::ledFillColorForState(p_state);
}

QColor VynUIQmlConstants::ledBorderColorForState(int p_state)
{
    return VynColorAppearance::ledBorderColorForState(p_state);
}

QColor VynUIQmlConstants::ledGlowColorForState(int p_state)
{
    return VynColorAppearance::ledGlowColorForState(p_state);
}

QColor VynUIQmlConstants::ledTextColor()
{
    return VynColorAppearance::ledTextColor();
}

QColor VynUIQmlConstants::yellowSelectionColor()
{
    return VynColorAppearance::yellowSelectionColor();
}

QColor VynUIQmlConstants::controlBorderRedColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::controlBorderRedColorForStyle(p_style);
}

QColor VynUIQmlConstants::controlColorForStyle(VynColorUtils::VynStyle p_style, int p_on)
{
    return VynColorAppearance::controlColorForStyle(p_style, p_on);
}

QColor VynUIQmlConstants::controlBorderColorForStyle(VynColorUtils::VynStyle p_style, int p_on,
                                                     bool p_isDefault, bool p_isDestructive)
{
    return VynColorAppearance::controlBorderColorForStyle(p_style, p_on, p_isDefault,
                                                          p_isDestructive);
}

QColor VynUIQmlConstants::controlFillColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::controlFillColor(p_style);
}

QColor VynUIQmlConstants::controlOnGradientColor(double p_location)
{
    return VynColorAppearance::controlOnGradientColor(p_location);
}

QColor VynUIQmlConstants::controlOnRedGradientColor(double p_location)
{
    return VynColorAppearance::controlOnRedGradientColor(p_location);
}

QColor VynUIQmlConstants::controlMixedGradientColor(double p_location)
{
    return VynColorAppearance::controlMixedGradientColor(p_location);
}

QColor VynUIQmlConstants::controlOffGradientColorForStyle(double p_location,
                                                          VynColorUtils::VynStyle p_style,
                                                          bool p_opaque, bool p_isDefault,
                                                          bool p_isDestructive)
{
    return VynColorAppearance::controlOffGradientColorForStyle(p_location, p_style, p_opaque,
                                                               p_isDefault, p_isDestructive);
}

QColor VynUIQmlConstants::controlImageOnGradientColor(double p_location)
{
    return VynColorAppearance::controlImageOnGradientColor(p_location);
}

QColor VynUIQmlConstants::controlImageOffGradientColor(double p_location, bool p_isDefault,
                                                       bool p_isDestructive)
{
    return VynColorAppearance::controlImageOffGradientColor(p_location, p_isDefault,
                                                            p_isDestructive);
}

QColor VynUIQmlConstants::controlMixedTickColor()
{
    return VynColorAppearance::controlMixedTickColor();
}

QColor VynUIQmlConstants::controlTextColorForStyle(VynColorUtils::VynStyle p_style, int p_on,
                                                   bool p_isDefault, bool p_isDestructive)
{
    return VynColorAppearance::controlTextColorForStyle(p_style, p_on, p_isDefault,
                                                        p_isDestructive);
}

QColor VynUIQmlConstants::flatButtonFillColorForStyle(VynColorUtils::VynStyle p_style, int p_on)
{
    return VynColorAppearance::flatButtonFillColorForStyle(p_style, p_on);
}

QColor VynUIQmlConstants::flatButtonBorderColorForStyle(VynColorUtils::VynStyle p_style, int p_on)
{
    return VynColorAppearance::flatButtonBorderColorForStyle(p_style, p_on);
}

QColor VynUIQmlConstants::flatButtonTextColorForStyle(VynColorUtils::VynStyle p_style, int p_on,
                                                      bool p_destructive)
{
    return VynColorAppearance::flatButtonTextColorForStyle(p_style, p_on, p_destructive);
}

QColor VynUIQmlConstants::flatButtonSeparatorColorForStyle(VynColorUtils::VynStyle p_style,
                                                           int p_on)
{
    return VynColorAppearance::flatButtonSeparatorColorForStyle(p_style, p_on);
}

QColor VynUIQmlConstants::templateButtonColorForStyle(VynColorUtils::VynStyle p_style, int p_on)
{
    return VynColorAppearance::templateButtonColorForStyle(p_style, p_on);
}

QColor VynUIQmlConstants::templateButtonTextColorForStyle(VynColorUtils::VynStyle p_style, int p_on)
{
    return VynColorAppearance::templateButtonTextColorForStyle(p_style, p_on);
}

QColor VynUIQmlConstants::inlineButtonColorForStyle(VynColorUtils::VynStyle p_style, int p_on)
{
    return VynColorAppearance::inlineButtonColorForStyle(p_style, p_on);
}

QColor VynUIQmlConstants::toolbarButtonColorForStyle(VynColorUtils::VynStyle p_style, int p_on)
{
    return VynColorAppearance::toolbarButtonColorForStyle(p_style, p_on);
}

QColor VynUIQmlConstants::toolbarButtonTextColorForStyle(VynColorUtils::VynStyle p_style, int p_on)
{
    return VynColorAppearance::toolbarButtonTextColorForStyle(p_style, p_on);
}

QColor VynUIQmlConstants::controlTouchOverColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::controlTouchOverColorForStyle(p_style);
}

QColor VynUIQmlConstants::textViewTextColorForStyle(VynColorUtils::VynStyle p_style, int p_mixed)
{
    return VynColorAppearance::textViewTextColorForStyle(p_style, p_mixed);
}

QColor VynUIQmlConstants::textViewBorderColorForStyle(VynColorUtils::VynStyle p_style, int p_mixed,
                                                      bool p_editing)
{
    return VynColorAppearance::textViewBorderColorForStyle(p_style, p_mixed, p_editing);
}

QColor VynUIQmlConstants::bridgeIconColorForStyle(VynColorUtils::VynStyle p_style, int p_level,
                                                  int p_mixed)
{
    return VynColorAppearance::bridgeIconColorForStyle(p_style, p_level, p_mixed);
}

QColor VynUIQmlConstants::badgeNewColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::badgeNewColorForStyle(p_style);
}

QColor VynUIQmlConstants::liveModeButtonColor(int p_mode)
{
    return VynColorAppearance::liveModeButtonColor(p_mode);
}

QColor VynUIQmlConstants::liveModeButtonBackgroundColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::liveModeButtonBackgroundColor(p_style);
}

QColor VynUIQmlConstants::liveModeButtonFillColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::liveModeButtonFillColor(p_style);
}

QColor VynUIQmlConstants::logRecordButtonColor()
{
    return VynColorAppearance::logRecordButtonColor();
}

QColor VynUIQmlConstants::zoneIconFillColor(const QColor& p_color, VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::zoneIconFillColor(p_color, p_style);
}

QColor VynUIQmlConstants::patchAnchorColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::patchAnchorColor(p_style);
}

QColor VynUIQmlConstants::patchLineNormalGradientColor(double p_location)
{
    return VynColorAppearance::patchLineNormalGradientColor(p_location);
}

QColor VynUIQmlConstants::patchLineExpectingGradientColor(double p_location)
{
    return VynColorAppearance::patchLineExpectingGradientColor(p_location);
}

QColor VynUIQmlConstants::patchLineMultipleGradientColor(double p_location)
{
    return VynColorAppearance::patchLineMultipleGradientColor(p_location);
}

QColor VynUIQmlConstants::patchDestructiveColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::patchDestructiveColor(p_style);
}

QColor VynUIQmlConstants::viewBackgroundColorForStyle(VynColorUtils::VynStyle p_style, int p_level)
{
    return VynColorAppearance::viewBackgroundColorForStyle(p_style, p_level);
}

QColor VynUIQmlConstants::textViewBackgroundColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::textViewBackgroundColorForStyle(p_style);
}

QColor VynUIQmlConstants::tableViewBackgroundColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::tableViewBackgroundColorForStyle(p_style);
}

QColor VynUIQmlConstants::tableViewBorderColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::tableViewBorderColorForStyle(p_style);
}

QColor VynUIQmlConstants::tableSectionBackgroundColorForStyle(VynColorUtils::VynStyle p_style,
                                                              bool p_warning)
{
    return VynColorAppearance::tableSectionBackgroundColorForStyle(p_style, p_warning);
}

QColor VynUIQmlConstants::tableSectionBorderColorForStyle(VynColorUtils::VynStyle p_style,
                                                          bool p_warning)
{
    return VynColorAppearance::tableSectionBorderColorForStyle(p_style, p_warning);
}

QColor VynUIQmlConstants::borderViewBackgroundColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::borderViewBackgroundColorForStyle(p_style);
}

QColor VynUIQmlConstants::popoverBackgroundColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::popoverBackgroundColorForStyle(p_style);
}

QColor VynUIQmlConstants::popoverBorderColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::popoverBorderColorForStyle(p_style);
}

QColor VynUIQmlConstants::popoverShadowColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::popoverShadowColorForStyle(p_style);
}

QColor VynUIQmlConstants::tableViewCellBackgroundColorForStyle(VynColorUtils::VynStyle p_style,
                                                               bool p_selected, bool p_hasFocus,
                                                               bool p_alternate)
{
    return VynColorAppearance::tableViewCellBackgroundColorForStyle(p_style, p_selected, p_hasFocus,
                                                                    p_alternate);
}

QColor
VynUIQmlConstants::tableViewCellBackgroundColorForTintAndStyle(const QColor& p_tint,
                                                               VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::tableViewCellBackgroundColorForTintAndStyle(p_tint, p_style);
}

QColor VynUIQmlConstants::tableViewCellRedOverlayColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::tableViewCellRedOverlayColorForStyle(p_style);
}

QColor VynUIQmlConstants::labelColorForStyle(VynColorUtils::VynStyle p_style, int p_level)
{
    return VynColorAppearance::labelColorForStyle(p_style, p_level);
}

QColor VynUIQmlConstants::coloredLabelColorForStyle(VynColorUtils::VynStyle p_style, int p_level)
{
    return VynColorAppearance::coloredLabelColorForStyle(p_style, p_level);
}

QColor VynUIQmlConstants::lineViewColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::lineViewColorForStyle(p_style);
}

QColor VynUIQmlConstants::splitViewLineColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::splitViewLineColorForStyle(p_style);
}

QColor VynUIQmlConstants::viewListButtonTitleColorForStyle(VynColorUtils::VynStyle p_style,
                                                           int p_level, const QColor& p_color,
                                                           bool p_mouseOver)
{
    return VynColorAppearance::viewListButtonTitleColorForStyle(p_style, p_level, p_color,
                                                                p_mouseOver);
}

QColor VynUIQmlConstants::viewListHeaderLineColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::viewListHeaderLineColorForStyle(p_style);
}

QColor VynUIQmlConstants::viewListHeaderLineShadowColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::viewListHeaderLineShadowColorForStyle(p_style);
}

QColor VynUIQmlConstants::windowBackgroundColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::windowBackgroundColorForStyle(p_style);
}

QColor VynUIQmlConstants::windowBorderColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::windowBorderColorForStyle(p_style);
}

QColor VynUIQmlConstants::colorIconShadowColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::colorIconShadowColorForStyle(p_style);
}

QColor VynUIQmlConstants::colorIconBorderColorForStyle(const QColor& p_color,
                                                       VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::colorIconBorderColorForStyle(p_color, p_style);
}

QColor VynUIQmlConstants::tableLabelColorForStyle(VynColorUtils::VynStyle p_style, bool p_selected,
                                                  bool p_hasFocus, int p_level)
{
    return VynColorAppearance::tableLabelColorForStyle(p_style, p_selected, p_hasFocus, p_level);
}

QColor VynUIQmlConstants::tableTintedLabelColorForStyle(const QColor& p_color,
                                                        VynColorUtils::VynStyle p_style,
                                                        bool p_selected)
{
    return VynColorAppearance::tableTintedLabelColorForStyle(p_color, p_style, p_selected);
}

QColor VynUIQmlConstants::popupBackgroundColorForStyle(const QColor& p_color,
                                                       VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::popupBackgroundColorForStyle(p_color, p_style);
}

QList<QColor> VynUIQmlConstants::backgroundColorsWithStops(const QColor& p_color,
                                                           const QList<double>& p_stops)
{
    return VynColorAppearance::backgroundColorsWithStops(p_color, p_stops);
}

QList<QColor> VynUIQmlConstants::backgroundColorsForStyleWithStops(const QColor& p_color,
                                                                   VynColorUtils::VynStyle p_style,
                                                                   const QList<double>& p_stops)
{
    return VynColorAppearance::backgroundColorsForStyleWithStops(p_color, p_style, p_stops);
}

QList<QColor> VynUIQmlConstants::backgroundColorsExtremeForStyleWithStops(
    const QColor& p_color, VynColorUtils::VynStyle p_style, const QList<double>& p_stops)
{
    return VynColorAppearance::backgroundColorsExtremeForStyleWithStops(p_color, p_style, p_stops);
}

QColor VynUIQmlConstants::circularUpdateTrackColor(const QColor& p_color)
{
    return VynColorAppearance::circularUpdateTrackColor(p_color);
}

QColor VynUIQmlConstants::networkMapBackgroundColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::networkMapBackgroundColorForStyle(p_style);
}

QColor VynUIQmlConstants::networkMapShadowColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::networkMapShadowColorForStyle(p_style);
}

QColor VynUIQmlConstants::mapImageGridColor()
{
    return VynColorAppearance::mapImageGridColor();
}

QColor VynUIQmlConstants::mapImageMissingColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::mapImageMissingColorForStyle(p_style);
}

QColor VynUIQmlConstants::mapImageAnchorFillColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::mapImageAnchorFillColorForStyle(p_style);
}

QColor VynUIQmlConstants::mapImageAnchorBorderColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::mapImageAnchorBorderColorForStyle(p_style);
}

QColor VynUIQmlConstants::networkPhantomCellFillColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::networkPhantomCellFillColorForStyle(p_style);
}

QColor VynUIQmlConstants::networkPhantomCellBorderColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::networkPhantomCellBorderColorForStyle(p_style);
}

QColor VynUIQmlConstants::networkOutOfContainerFocusColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::networkOutOfContainerFocusColorForStyle(p_style);
}

QColor VynUIQmlConstants::networkCellBackgroundColorForStyle(const QColor& p_tint,
                                                             VynColorUtils::VynStyle p_style,
                                                             bool p_selected)
{
    return VynColorAppearance::networkCellBackgroundColorForStyle(p_tint, p_style, p_selected);
}

QColor VynUIQmlConstants::networkCellBorderColorForStyle(const QColor& p_tint,
                                                         VynColorUtils::VynStyle p_style,
                                                         bool p_selected)
{
    return VynColorAppearance::networkCellBorderColorForStyle(p_tint, p_style, p_selected);
}

QColor VynUIQmlConstants::networkCellSelectedBorderColorForStyle(const QColor& p_tint,
                                                                 VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::networkCellSelectedBorderColorForStyle(p_tint, p_style);
}

QColor VynUIQmlConstants::networkCellEvenColorForStyle(const QColor& p_tint,
                                                       VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::networkCellEvenColorForStyle(p_tint, p_style);
}

QColor VynUIQmlConstants::networkCellOddColorForStyle(const QColor& p_tint,
                                                      VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::networkCellOddColorForStyle(p_tint, p_style);
}

QColor VynUIQmlConstants::lassoBorderColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::lassoBorderColorForStyle(p_style);
}

QColor VynUIQmlConstants::lassoFillColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::lassoFillColorForStyle(p_style);
}

QColor VynUIQmlConstants::taskButtonColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::taskButtonColorForStyle(p_style);
}

QColor VynUIQmlConstants::alignmentGuideColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::alignmentGuideColorForStyle(p_style);
}

QColor VynUIQmlConstants::tuningBorderViewBackgroundColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::tuningBorderViewBackgroundColorForStyle(p_style);
}

QColor VynUIQmlConstants::screenCompositionBorderColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::screenCompositionBorderColorForStyle(p_style);
}

QColor VynUIQmlConstants::tuningHeaderBackgroundColorForStyle(VynColorUtils::VynStyle p_style,
                                                              int p_level)
{
    return VynColorAppearance::tuningHeaderBackgroundColorForStyle(p_style, p_level);
}

QColor VynUIQmlConstants::tuningStatusLabelColorForStyle(VynColorUtils::VynStyle p_style,
                                                         int p_level)
{
    return VynColorAppearance::tuningStatusLabelColorForStyle(p_style, p_level);
}

QColor VynUIQmlConstants::tuningStatusWarningColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::tuningStatusWarningColorForStyle(p_style);
}

QColor VynUIQmlConstants::tuningProductLabelColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::tuningProductLabelColorForStyle(p_style);
}

QColor VynUIQmlConstants::tuningGlobalViewBackgroundColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::tuningGlobalViewBackgroundColorForStyle(p_style);
}

QColor VynUIQmlConstants::vuMeterBorderColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::vuMeterBorderColor(p_style);
}

QColor VynUIQmlConstants::vuMeterFillColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::vuMeterFillColor(p_style);
}

QColor VynUIQmlConstants::vuMeterTickMarkColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::vuMeterTickMarkColor(p_style);
}

QColor VynUIQmlConstants::eqThumbnailOnBkgGradientColorForStyle(double p_location,
                                                                VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqThumbnailOnBkgGradientColorForStyle(p_location, p_style);
}

QColor VynUIQmlConstants::eqThumbnailOffBkgGradientColorForStyle(double p_location,
                                                                 VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqThumbnailOffBkgGradientColorForStyle(p_location, p_style);
}

QColor VynUIQmlConstants::eqThumbnailMixedBkgGradientColorForStyle(double p_location,
                                                                   VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqThumbnailMixedBkgGradientColorForStyle(p_location, p_style);
}

QColor VynUIQmlConstants::eqThumbColorForStyle(VynColorUtils::VynStyle p_style, bool p_selected,
                                               int p_on)
{
    return VynColorAppearance::eqThumbColorForStyle(p_style, p_selected, p_on);
}

QColor VynUIQmlConstants::eqTypeCurveColorForStyle(VynColorUtils::VynStyle p_style, int p_on)
{
    return VynColorAppearance::eqTypeCurveColorForStyle(p_style, p_on);
}

QColor VynUIQmlConstants::eqCurveGradientColorForStyle(VynColorUtils::VynStyle p_style, int p_on,
                                                       int p_curveIndex, int p_numberOfCurves)
{
    return VynColorAppearance::eqCurveGradientColorForStyle(p_style, p_on, p_curveIndex,
                                                            p_numberOfCurves, nullptr, nullptr);
}

QColor VynUIQmlConstants::eqThumbnailGridColorsForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqThumbnailGridColorsForStyle(p_style);
}

QColor VynUIQmlConstants::eqThumbnailLeftTextColor()
{
    return VynColorAppearance::eqThumbnailLeftTextColor();
}

QColor VynUIQmlConstants::eqThumbnailLeftBkgOnColor()
{
    return VynColorAppearance::eqThumbnailLeftBkgOnColor();
}

QColor VynUIQmlConstants::eqThumbnailLeftBkgOffColor()
{
    return VynColorAppearance::eqThumbnailLeftBkgOffColor();
}

QColor VynUIQmlConstants::eqThumbnailLeftBkgMixedColor()
{
    return VynColorAppearance::eqThumbnailLeftBkgMixedColor();
}

QColor VynUIQmlConstants::eqThumbnailRightOnColorsForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqThumbnailRightOnColorsForStyle(p_style);
}

QColor VynUIQmlConstants::eqThumbnailRightOffColorsForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqThumbnailRightOffColorsForStyle(p_style);
}

QColor VynUIQmlConstants::eqThumbnailRightMixedColorsForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqThumbnailRightMixedColorsForStyle(p_style);
}

QColor VynUIQmlConstants::eqThumbnailEmptyColor()
{
    return VynColorAppearance::eqThumbnailEmptyColor();
}

QColor VynUIQmlConstants::eqThumbnailBorderColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqThumbnailBorderColorForStyle(p_style);
}

QColor VynUIQmlConstants::eqGraphArrayEQFillColorsForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqGraphArrayEQFillColorsForStyle(p_style);
}

QColor VynUIQmlConstants::eqGraphArrayEQBorderColorsForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqGraphArrayEQBorderColorsForStyle(p_style);
}

QColor VynUIQmlConstants::eqGraphLabelColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqGraphLabelColorForStyle(p_style);
}

QColor VynUIQmlConstants::eqGraphAxisMainColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqGraphAxisMainColorForStyle(p_style);
}

QColor VynUIQmlConstants::eqGraphAxisSecondaryColorForStyle(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::eqGraphAxisSecondaryColorForStyle(p_style);
}

QColor VynUIQmlConstants::eqGraphBackgroundGradientColor(const QColor& p_tint,
                                                         VynColorUtils::VynStyle p_style,
                                                         int p_position)
{
    return VynColorAppearance::eqGraphBackgroundGradientColor(p_tint, p_style, p_position);
}

QColor VynUIQmlConstants::recapHeaderGradientColor(const QColor& p_tint,
                                                   VynColorUtils::VynStyle p_style, int p_position)
{
    return VynColorAppearance::recapHeaderGradientColor(p_tint, p_style, p_position);
}

QColor VynUIQmlConstants::graphBackgroundTransformedColor(const QColor& p_color,
                                                          VynColorUtils::VynStyle p_style,
                                                          int p_firstOrSecond)
{
    return VynColorAppearance::graphBackgroundTransformedColor(p_color, p_style, p_firstOrSecond);
}

QColor VynUIQmlConstants::graphThumbLabelBackgroundTransformedColor(const QColor& p_color,
                                                                    VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::graphThumbLabelBackgroundTransformedColor(p_color, p_style);
}

QColor VynUIQmlConstants::barGraphPercentTransformedColor(const QColor& p_color,
                                                          VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::barGraphPercentTransformedColor(p_color, p_style);
}

QColor VynUIQmlConstants::barGraphHighlightTransformedColor(const QColor& p_color,
                                                            VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::barGraphHighlightTransformedColor(p_color, p_style);
}

QColor VynUIQmlConstants::logGraphInfoColor(int p_paramFamily)
{
    return VynColorAppearance::logGraphInfoColor(p_paramFamily);
}

QColor VynUIQmlConstants::logGraphMarkColor(const QColor& p_infoColor)
{
    return VynColorAppearance::logGraphMarkColor(p_infoColor);
}

QColor VynUIQmlConstants::logGraphAxisColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::logGraphAxisColor(p_style);
}

QColor VynUIQmlConstants::logGraphLabelColor(VynColorUtils::VynStyle p_style, int p_timeOrDay)
{
    return VynColorAppearance::logGraphLabelColor(p_style, p_timeOrDay);
}

QColor VynUIQmlConstants::logGraphLabelShadowColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::logGraphLabelShadowColor(p_style);
}

QColor VynUIQmlConstants::logGraphInfoNoGraphColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::logGraphInfoNoGraphColor(p_style);
}

QColor VynUIQmlConstants::logTimeSliderBreakColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::logTimeSliderBreakColor(p_style);
}

QColor VynUIQmlConstants::logTimeSliderLabelColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::logTimeSliderLabelColor(p_style);
}

QColor VynUIQmlConstants::logGraphBreakFillColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::logGraphBreakFillColor(p_style);
}

QColor VynUIQmlConstants::logGraphBreakBorderColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::logGraphBreakBorderColor(p_style);
}

QColor VynUIQmlConstants::logKeyFactsTitleColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::logKeyFactsTitleColor(p_style);
}

QColor VynUIQmlConstants::logGraphInfoColor2(const QColor& p_color, VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::logGraphInfoColor2(p_color, p_style);
}

// Colour arithmetic, forwarded to VynColorUtils.

QColor VynUIQmlConstants::colorWithRGBAffineTransformA(const QColor& p_color, double p_a,
                                                       double p_b, double p_alpha)
{
    return VynColorUtils::colorWithRGBAffineTransformA(p_color, p_a, p_b, p_alpha);
}

QColor VynUIQmlConstants::colorByIncreasingLuminosityWithScale(const QColor& p_color,
                                                               double p_scale, double p_offset)
{
    return VynColorUtils::colorByIncreasingLuminosityWithScale(p_color, p_scale, p_offset);
}

QColor VynUIQmlConstants::colorBySettingBrightness(const QColor& p_color, double p_brightness)
{
    return VynColorUtils::colorBySettingBrightness(p_color, p_brightness);
}

QColor VynUIQmlConstants::colorBySettingAlpha(const QColor& p_color, double p_alpha)
{
    return VynColorUtils::colorBySettingAlpha(p_color, p_alpha);
}

QColor VynUIQmlConstants::colorByIncreasingSaturationWithScale(const QColor& p_color,
                                                               double p_scale, double p_offset)
{
    return VynColorUtils::colorByIncreasingSaturationWithScale(p_color, p_scale, p_offset);
}

QColor VynUIQmlConstants::colorBySettingSaturation(const QColor& p_color, double p_saturation)
{
    return VynColorUtils::colorBySettingSaturation(p_color, p_saturation);
}

QColor VynUIQmlConstants::colorWithColorAndMaxDistance(const QColor& p_color, double p_distance)
{
    return VynColorUtils::colorWithColorAndMaxDistance(p_color, p_distance);
}

QColor VynUIQmlConstants::noAlphaColorOverColor(const QColor& p_color, const QColor& p_background)
{
    return VynColorUtils::noAlphaColorOverColor(p_color, p_background);
}

QColor VynUIQmlConstants::colorByOverlayingColor(const QColor& p_main, const QColor& p_top)
{
    return VynColorUtils::colorByOverlayingColor(p_main, p_top);
}

QColor VynUIQmlConstants::contrastingColor(const QColor& p_color)
{
    return VynColorUtils::contrastingColor(p_color);
}

QColor VynUIQmlConstants::contrastingColorLight(const QColor& p_color)
{
    return VynColorUtils::contrastingColorLight(p_color);
}

QColor VynUIQmlConstants::blackOrWhiteContrastingColor(const QColor& p_color)
{
    return VynColorUtils::blackOrWhiteContrastingColor(p_color);
}

QColor VynUIQmlConstants::blackOrWhiteContrastingColorExtreme(const QColor& p_color)
{
    return VynColorUtils::blackOrWhiteContrastingColorExtreme(p_color);
}

QColor VynUIQmlConstants::colorWithRGBColor(const VynRGBColor& p_color)
{
    return VynColorUtils::colorWithRGBColor(p_color);
}

QColor VynUIQmlConstants::colorFromRGBColorString(const QString& p_text)
{
    return VynColorUtils::colorFromRGBColorString(p_text);
}

VynRGBColor VynUIQmlConstants::rgbColorFromColor(const QColor& p_color)
{
    return VynColorUtils::rgbColorFromColor(p_color);
}

VynRGBColor VynUIQmlConstants::rgbColorMake(double p_red, double p_green, double p_blue,
                                            double p_alpha)
{
    return VynColorUtils::rgbColorMake(p_red, p_green, p_blue, p_alpha);
}

VynRGBColor VynUIQmlConstants::rgbColorZero()
{
    return VynColorUtils::rgbColorZero();
}

QColor VynUIQmlConstants::glowColorWithAlpha(const QColor& p_color, double p_alpha)
{
    return VynColorUtils::glowColorWithAlpha(p_color, p_alpha);
}

QColor VynUIQmlConstants::noAlphaColorWithAlpha(const QColor& p_color, double p_alpha,
                                                const QColor& p_background)
{
    return VynColorUtils::noAlphaColorWithAlpha(p_color, p_alpha, p_background);
}

// Level-meter colours.

int VynUIQmlConstants::vuMeterOnColorsCount()
{
    return VynVUMeterConstants::kVynVUMeterOnColorsCount;
}

QColor VynUIQmlConstants::vuMeterOnColorForIndex(int p_index)
{
    return VynColorUtils::colorWithRGBColor(
        VynVUMeterConstants::kVynVUMeterOnColors[meterLevel(p_index)]);
}

QColor VynUIQmlConstants::vuMeterGlowColorForIndex(int p_index, VynColorUtils::VynStyle p_style)
{
    const int entry =
        VynColorUtils::styleIndex(p_style) * VynVUMeterConstants::kVynVUMeterOnColorsCount +
        meterLevel(p_index);
    return VynColorUtils::colorWithRGBColor(VynVUMeterConstants::kVynVUMeterGlowColors[entry]);
}

QColor VynUIQmlConstants::vuMeterOffColor(VynColorUtils::VynStyle p_style)
{
    return VynColorUtils::colorWithRGBColor(
        VynVUMeterConstants::kVynVUMeterOffColor[VynColorUtils::styleIndex(p_style)]);
}

namespace {

QList<QCoreWindowController*> controllersFrom(const QVariant& value)
{
    QList<QCoreWindowController*> controllers;
    const auto add = [&controllers](const QVariant& item) {
        if (auto* controller = qobject_cast<QCoreWindowController*>(item.value<QObject*>()))
            controllers.append(controller);
    };
    if (value.metaType() == QMetaType::fromType<QVariantList>() ||
        value.metaType() == QMetaType::fromType<QJSValue>()) {
        const QVariantList list = value.metaType() == QMetaType::fromType<QJSValue>()
                                      ? value.value<QJSValue>().toVariant().toList()
                                      : value.toList();
        for (const QVariant& item : list)
            add(item);
    } else {
        add(value);
    }
    return controllers;
}

QPair<QString, QString> buttonPair(const QStringList& titles)
{
    return {titles.value(0), titles.value(1)};
}

QApplicationMessage::Completion completionFrom(const QJSValue& callback)
{
    if (!callback.isCallable())
        return {};
    return [callback](int response, bool isChecked, const QVariant&) {
        QJSValue function(callback);
        function.call({QJSValue(response), QJSValue(isChecked)});
    };
}

} // namespace

// An object returned to QML without a parent would become the engine's to collect: the host's
// windows and controllers stay the host's.
template <typename T> static T* keptByHost(T* object)
{
    if (object)
        QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
    return object;
}

QCoreWindowController* VynUIQmlConstants::windowControllerForQmlObject(QObject* p_object)
{
    return keptByHost(QCoreWindowController::controllerForQmlObject(p_object));
}

QQuickWindow* VynUIQmlConstants::windowForQmlObject(QObject* p_object)
{
    return keptByHost(QCoreWindowController::windowForQmlObject(p_object));
}

QApplicationMessage*
VynUIQmlConstants::presentBasicMessage(const QString& p_title, const QString& p_message, int p_tag,
                                       int p_level, int p_type, const QString& p_actionTitle,
                                       const QVariant& p_windowControllers, QObject* p_parent,
                                       const QJSValue& p_completion, const QVariant& p_context)
{
    return keptByHost(QApplicationMessage::presentBasicMessage(
        p_title, p_message, p_tag, p_level, p_type, p_actionTitle,
        controllersFrom(p_windowControllers), p_parent, completionFrom(p_completion), p_context));
}

QApplicationMessage* VynUIQmlConstants::presentConfirmMessage(
    const QString& p_title, const QString& p_message, int p_tag, int p_level, int p_type,
    const QStringList& p_buttonTitles, const QVariant& p_windowControllers, QObject* p_parent,
    const QJSValue& p_completion, const QVariant& p_context)
{
    return keptByHost(QApplicationMessage::presentConfirmMessage(
        p_title, p_message, p_tag, p_level, p_type, buttonPair(p_buttonTitles),
        controllersFrom(p_windowControllers), p_parent, completionFrom(p_completion), p_context));
}

QApplicationMessage*
VynUIQmlConstants::presentCustomMessage(const QString& p_title, const QString& p_message, int p_tag,
                                        int p_level, int p_type, const QStringList& p_actionTitles,
                                        const QVariant& p_windowControllers, QObject* p_parent,
                                        const QJSValue& p_completion, const QVariant& p_context)
{
    return keptByHost(QApplicationMessage::presentCustomMessage(
        p_title, p_message, p_tag, p_level, p_type, p_actionTitles,
        controllersFrom(p_windowControllers), p_parent, completionFrom(p_completion), p_context));
}

QApplicationMessage* VynUIQmlConstants::presentConfirmMessageIfNeededForSecurityType(
    int p_securityType, const QString& p_title, const QString& p_message, int p_tag, int p_level,
    int p_type, const QStringList& p_buttonTitles, const QVariant& p_windowControllers,
    QObject* p_parent, const QJSValue& p_completion, const QVariant& p_context)
{
    return keptByHost(QApplicationMessage::presentConfirmMessageIfNeededForSecurityType(
        p_securityType, p_title, p_message, p_tag, p_level, p_type, buttonPair(p_buttonTitles),
        controllersFrom(p_windowControllers), p_parent, completionFrom(p_completion), p_context));
}

double VynUIQmlConstants::liveModeButtonAlpha()
{
    return VynColorAppearance::liveModeButtonAlpha();
}

double VynUIQmlConstants::liveModeButtonTouchingAlpha()
{
    return VynColorAppearance::liveModeButtonTouchingAlpha();
}

QColor VynUIQmlConstants::zoneIconTouchingColor(const QColor& p_color,
                                                VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::zoneIconTouchingColor(p_color, p_style);
}

double VynUIQmlConstants::zoneIconShadowAlpha()
{
    return VynColorAppearance::zoneIconShadowAlpha();
}

QColor VynUIQmlConstants::popoverButtonFillColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::popoverButtonFillColor(p_style);
}

QColor VynUIQmlConstants::popoverButtonBorderColor(VynColorUtils::VynStyle p_style)
{
    return VynColorAppearance::popoverButtonBorderColor(p_style);
}
