#include "vynrgbcolor.h"

#include <QStringList>

#include <cmath>

namespace {

double clampChannel(double value)
{
    if (!(value >= 0.0)) // also catches NaN
        return 0.0;
    return value > 1.0 ? 1.0 : value;
}

bool parseHex(QStringView digits, VynRGBColor& out)
{
    if (digits.size() != 6 && digits.size() != 8)
        return false;
    double channels[4] = {0.0, 0.0, 0.0, 1.0};
    for (QChar digit : digits) {
        const char16_t c = digit.unicode();
        const bool hex =
            (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
        if (!hex)
            return false;
    }
    for (qsizetype i = 0; i < digits.size() / 2; ++i) {
        bool ok = false;
        const uint byte = digits.mid(i * 2, 2).toUInt(&ok, 16);
        if (!ok)
            return false;
        channels[i] = byte / 255.0;
    }
    out = VynRGBColor{channels[0], channels[1], channels[2], channels[3]};
    return true;
}

bool parseDecimal(const QString& text, VynRGBColor& out)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() != 3 && parts.size() != 4)
        return false;
    double channels[4] = {0.0, 0.0, 0.0, 1.0};
    for (qsizetype i = 0; i < parts.size(); ++i) {
        bool ok = false;
        const double value = parts.at(i).trimmed().toDouble(&ok);
        if (!ok || !std::isfinite(value) || value < 0.0 || value > 1.0)
            return false;
        channels[i] = value;
    }
    out = VynRGBColor{channels[0], channels[1], channels[2], channels[3]};
    return true;
}

} // namespace

VynRGBColor VynRGBColorMake(double red, double green, double blue, double alpha)
{
    return VynRGBColor{clampChannel(red), clampChannel(green), clampChannel(blue),
                       clampChannel(alpha)};
}

VynRGBColor VynRGBColorFromString(const QString& text, bool* ok)
{
    const QString trimmed = text.trimmed();
    VynRGBColor color;
    bool parsed = false;
    if (trimmed.startsWith(QLatin1Char('#')))
        parsed = parseHex(QStringView(trimmed).mid(1), color);
    else if (!trimmed.isEmpty())
        parsed = parseDecimal(trimmed, color);
    if (ok)
        *ok = parsed;
    return parsed ? color : VynRGBColor{};
}

QString VynRGBColorToString(const VynRGBColor& color)
{
    const auto byte = [](double channel) {
        return QStringLiteral("%1").arg(qRound(clampChannel(channel) * 255.0), 2, 16,
                                        QLatin1Char('0'));
    };
    return QLatin1Char('#') + byte(color.red) + byte(color.green) + byte(color.blue) +
           byte(color.alpha);
}

bool VynRGBColorEqualsColor(const VynRGBColor& a, const VynRGBColor& b)
{
    // Half an 8-bit step, and a hair more for the decimal arithmetic.
    constexpr double tolerance = 0.5 / 255.0 + 1e-9;
    return std::abs(a.red - b.red) <= tolerance && std::abs(a.green - b.green) <= tolerance &&
           std::abs(a.blue - b.blue) <= tolerance && std::abs(a.alpha - b.alpha) <= tolerance;
}
