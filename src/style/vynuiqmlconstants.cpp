#include "vynuiqmlconstants.h"

#include "vynuimetrics.h"

#include <qtcommonsconstants.h>
#include <qtcommonstitlebar.h>
#include <vynfileutils.h>

#include <QHash>
#include <QJSEngine>
#include <QMetaEnum>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QThread>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

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

// How a metric turns base x ratio into its answer; the names are those of vynuimetrics.def.
enum class Scaling { Rounded, Unrounded, Truncated };

template <typename T, Scaling S> T scaled(double value)
{
    if constexpr (S == Scaling::Unrounded) {
        static_assert(std::is_same_v<T, double>, "an unrounded metric answers a double");
        return value;
    } else if constexpr (std::is_same_v<T, int>) {
        return S == Scaling::Rounded ? roundedInt(value) : truncatedInt(value);
    } else {
        static_assert(S == Scaling::Rounded, "a double metric is rounded or unrounded");
        return rounded(value);
    }
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

/*
 * The orientation a caller passed, Qt::Vertical or Qt::Horizontal for any other integer. QML
 * stores whatever integer a document gives where an enumeration is expected; loading a value
 * outside Qt::Orientation's range as a Qt::Orientation is undefined, so the storage behind the
 * reference is read as the integer it holds.
 */
Qt::Orientation orientationOf(const Qt::Orientation& orientation)
{
    std::underlying_type_t<Qt::Orientation> value;
    static_assert(sizeof(value) == sizeof(orientation));
    std::memcpy(&value, &orientation, sizeof(value));
    return value == Qt::Vertical ? Qt::Vertical : Qt::Horizontal;
}

bool isSuggestionIndex(int index)
{
    return index >= 0 && index < VynEQConstants::kVynEQSuggestionsCount;
}

} // namespace

#define VYNUI_MIME_TYPE(getter, member, text)                                                      \
    const QString VynUIQmlConstants::member = QStringLiteral(text);
#include "vynuimetrics.def"

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

namespace {

// A look as the metrics cache keys it: ratios by their bits, every NaN alike and -0 as 0.
struct MetricsKey
{
    int controlSize;
    int style;
    quint64 ratio;
    quint64 fontRatio;

    friend bool operator==(const MetricsKey& p_a, const MetricsKey& p_b)
    {
        return p_a.controlSize == p_b.controlSize && p_a.style == p_b.style &&
               p_a.ratio == p_b.ratio && p_a.fontRatio == p_b.fontRatio;
    }
    friend size_t qHash(const MetricsKey& p_key, size_t p_seed = 0)
    {
        return qHashMulti(p_seed, p_key.controlSize, p_key.style, p_key.ratio, p_key.fontRatio);
    }
};

quint64 ratioBits(double p_ratio)
{
    if (std::isnan(p_ratio))
        p_ratio = std::numeric_limits<double>::quiet_NaN();
    else if (p_ratio == 0.0)
        p_ratio = 0.0;
    quint64 bits = 0;
    std::memcpy(&bits, &p_ratio, sizeof bits);
    return bits;
}

constexpr qsizetype kMaxCachedMetrics = 1024;

} // namespace

VynUIMetrics* VynUIQmlConstants::metrics(int p_controlSize, double p_ratio, double p_fontRatio,
                                         int p_style)
{
    VynUIQmlConstants* owner = instance();
    if (QThread::currentThread() != owner->thread())
        return new VynUIMetrics(p_controlSize, p_ratio, p_fontRatio, p_style);

    static QHash<MetricsKey, VynUIMetrics*> s_cache;
    const MetricsKey key{VynUIMetrics::normalisedControlSize(p_controlSize),
                         VynUIMetrics::normalisedStyle(p_style), ratioBits(p_ratio),
                         ratioBits(p_fontRatio)};
    if (VynUIMetrics* cached = s_cache.value(key))
        return cached;
    if (s_cache.size() >= kMaxCachedMetrics)
        return new VynUIMetrics(p_controlSize, p_ratio, p_fontRatio, p_style);
    auto* created = new VynUIMetrics(p_controlSize, p_ratio, p_fontRatio, p_style, owner);
    s_cache.insert(key, created);
    return created;
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

// Metrics and mime types, one member per row of vynuimetrics.def.

#define VYNUI_SIZED_METRIC(type, name, scaling, mini, small, regular, large, extraLarge)           \
    type VynUIQmlConstants::name(VynViewUtils::VynControlSize p_controlSize, double p_ratio)       \
    {                                                                                              \
        constexpr double row[] = {mini, small, regular, large, extraLarge};                        \
        return scaled<type, Scaling::scaling>(sizeRow(row, p_controlSize) * p_ratio);              \
    }
#define VYNUI_SCALED_METRIC(type, name, scaling, base)                                             \
    type VynUIQmlConstants::name(double p_ratio)                                                   \
    {                                                                                              \
        return scaled<type, Scaling::scaling>(double(base) * p_ratio);                             \
    }
#define VYNUI_FIXED_METRIC(type, name, value)                                                      \
    type VynUIQmlConstants::name()                                                                 \
    {                                                                                              \
        return value;                                                                              \
    }
#define VYNUI_MIME_TYPE(getter, member, text)                                                      \
    QString VynUIQmlConstants::getter()                                                            \
    {                                                                                              \
        return member;                                                                             \
    }
#include "vynuimetrics.def"

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

Qt::Orientation
VynUIQmlConstants::alignmentsViewVynOrientationOther(const Qt::Orientation& p_orientation)
{
    return VynViewUtils::vynOrientationOther(orientationOf(p_orientation));
}

VynViewUtils::VynSideBounds
VynUIQmlConstants::alignmentsViewVynSideBoundsForRect(const QRectF& p_rect,
                                                      const Qt::Orientation& p_orientation)
{
    return VynViewUtils::vynSideBoundsForRect(p_rect, orientationOf(p_orientation));
}

double
VynUIQmlConstants::alignmentsViewQRectFOrthogonalDimensionForSide(const QRectF& p_rect,
                                                                  VynViewUtils::VynSide p_side)
{
    return VynViewUtils::qRectFOrthogonalDimensionForSide(p_rect, p_side);
}

double
VynUIQmlConstants::alignmentsViewQRectFSizeAlongOrientation(const QRectF& p_rect,
                                                            const Qt::Orientation& p_orientation)
{
    return VynViewUtils::qRectFSizeAlongOrientation(p_rect, orientationOf(p_orientation));
}

QRectF VynUIQmlConstants::alignmentsViewRoundedQRectF(const QRectF& p_rect)
{
    QRectF rect = p_rect;
    return VynViewUtils::roundedQRectF(rect);
}

QRectF VynUIQmlConstants::alignmentsViewQRectFForLine(double p_start, double p_end,
                                                      double p_position,
                                                      const Qt::Orientation& p_orientation,
                                                      double p_thickness)
{
    return VynViewUtils::qRectFForLine(p_start, p_end, p_position, orientationOf(p_orientation),
                                       p_thickness);
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

VynLedParamConfig VynUIQmlConstants::createParamConfig(VynViewUtils::VynLedState p_state,
                                                       const VynProxyParamPath& p_path,
                                                       const VynProxyParamPath& p_addPath,
                                                       int p_priority, int p_lowerThs,
                                                       int p_upperThs, bool p_skipMultiple)
{
    VynLedParamConfig config;
    const bool named = QMetaEnum::fromType<VynViewUtils::VynLedState>().valueToKey(p_state);
    config.state = named ? p_state : VynViewUtils::VynLedStateNone;
    config.path = p_path;
    config.addPath = p_addPath;
    config.priority = p_priority;
    config.lowerThs = p_lowerThs;
    config.upperThs = p_upperThs;
    config.skipMultiple = p_skipMultiple;
    return config;
}

VynHintManager* VynUIQmlConstants::hintManagerForQmlObject(QObject* p_object)
{
    return hintManagerForQmlObject(p_object, nullptr);
}

VynHintManager* VynUIQmlConstants::hintManagerForQmlObject(QObject* p_object,
                                                           QObject** p_parentItem)
{
    return keptByHost(VynHintManager::managerForQmlObject(p_object, p_parentItem));
}
