#include "vynproxyparampath.h"

#include <qtcommonsconstants.h>

#include <QHash>
#include <QRegularExpression>

#include "vynlocalizable.h"

const VynProxyParamPath VynProxyParamPath::EmptyPath;

namespace {

QHash<QString, int>& nameIds()
{
    // Ids of the common parameter names. 111 to 117 are the metering names.
    static QHash<QString, int> s_ids{
        {QStringLiteral("Device"), 1},        {QStringLiteral("Amp"), 2},
        {QStringLiteral("Channel"), 3},       {QStringLiteral("Input"), 4},
        {QStringLiteral("Output"), 5},        {QStringLiteral("Meter"), 6},
        {QStringLiteral("Band"), 7},          {QStringLiteral("Gain"), 101},
        {QStringLiteral("Delay"), 102},       {QStringLiteral("Frequency"), 103},
        {QStringLiteral("Mute"), 104},        {QStringLiteral("Polarity"), 105},
        {QStringLiteral("Q"), 106},           {QStringLiteral("Voltage"), 111},
        {QStringLiteral("Current"), 112},     {QStringLiteral("GainReduction"), 113},
        {QStringLiteral("PeakLimiter"), 114}, {QStringLiteral("Temperature"), 115},
        {QStringLiteral("Compressor"), 116},  {QStringLiteral("CompressorRms"), 117},
    };
    return s_ids;
}

} // namespace

VynProxyParamPath::VynProxyParamPath(const QList<Element>& elements) : m_elements(elements) {}

VynProxyParamPath VynProxyParamPath::fromString(const QString& text, bool* ok)
{
    static const QRegularExpression elementPattern(QStringLiteral(
        "^\\s*([^/\\[\\]#]*[^/\\[\\]#\\s])\\s*(?:\\[(\\d+)\\])?\\s*(?:#(\\d+))?\\s*$"));

    QList<Element> elements;
    const QStringList parts = text.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (part.trimmed().isEmpty())
            continue;
        const QRegularExpressionMatch match = elementPattern.match(part);
        bool indexOk = true;
        bool idOk = true;
        Element element;
        if (match.hasMatch()) {
            element.name = match.captured(1).trimmed();
            if (match.hasCaptured(2))
                element.index = match.captured(2).toInt(&indexOk);
            element.id =
                match.hasCaptured(3) ? match.captured(3).toInt(&idOk) : nameId(element.name);
        }
        if (!match.hasMatch() || !indexOk || !idOk) {
            if (ok)
                *ok = false;
            return EmptyPath;
        }
        elements.append(element);
    }
    if (ok)
        *ok = true;
    return VynProxyParamPath(elements);
}

QString VynProxyParamPath::toString() const
{
    QString text;
    for (const Element& element : m_elements) {
        if (!text.isEmpty())
            text += QLatin1Char('/');
        text += element.name;
        if (element.index >= 0)
            text += QLatin1Char('[') + QString::number(element.index) + QLatin1Char(']');
        if (element.id != nameId(element.name))
            text += QLatin1Char('#') + QString::number(element.id);
    }
    return text;
}

VynProxyParamPath VynProxyParamPath::appended(const Element& element) const
{
    VynProxyParamPath path(*this);
    path.m_elements.append(element);
    return path;
}

VynProxyParamPath VynProxyParamPath::prefixed(const Element& element) const
{
    VynProxyParamPath path(*this);
    path.m_elements.prepend(element);
    return path;
}

VynProxyParamPath VynProxyParamPath::parent() const
{
    VynProxyParamPath path(*this);
    if (!path.m_elements.isEmpty())
        path.m_elements.removeLast();
    return path;
}

int VynProxyParamPath::getLastName() const
{
    return m_elements.isEmpty() ? 0 : m_elements.constLast().id;
}

QString VynProxyParamPath::getLastNameText() const
{
    return m_elements.isEmpty() ? QString() : m_elements.constLast().name;
}

QString VynProxyParamPath::getLocalizedNameForFamily(VynFamilyUtils::VynDeviceFamily family,
                                                     bool shortForm) const
{
    if (m_elements.isEmpty())
        return QString();
    const Element& last = m_elements.constLast();
    const QString& table = VynLocalizable::kParamNamesContext;
    const QString familyKey = VynFamilyUtils::familyKey(family);

    QStringList keys;
    const auto addKeys = [&](const QString& key) {
        if (!familyKey.isEmpty())
            keys << familyKey + QLatin1Char('/') + key;
        keys << key;
    };
    if (shortForm)
        addKeys(last.name + QStringLiteral("_SHORT"));
    addKeys(last.name);

    QString name = last.name;
    for (const QString& key : std::as_const(keys)) {
        const QString text = QtCommonsConstants::qLocalizedString(key, table);
        if (text != key) {
            name = text;
            break;
        }
    }
    if (last.index >= 0)
        name += QLatin1Char(' ') + QString::number(last.index);
    return name;
}

int VynProxyParamPath::compare(const VynProxyParamPath& other) const
{
    const qsizetype common = qMin(m_elements.size(), other.m_elements.size());
    for (qsizetype i = 0; i < common; ++i) {
        const Element& a = m_elements.at(i);
        const Element& b = other.m_elements.at(i);
        if (const int byName = a.name.compare(b.name))
            return byName;
        if (a.index != b.index)
            return a.index < b.index ? -1 : 1;
        if (a.id != b.id)
            return a.id < b.id ? -1 : 1;
    }
    if (m_elements.size() == other.m_elements.size())
        return 0;
    return m_elements.size() < other.m_elements.size() ? -1 : 1;
}

void VynProxyParamPath::registerNameId(const QString& name, int id)
{
    nameIds().insert(name, id);
}

int VynProxyParamPath::nameId(const QString& name)
{
    return nameIds().value(name, 0);
}

size_t qHash(const VynProxyParamPath& path, size_t seed)
{
    for (const VynProxyParamPath::Element& element : path.elements())
        seed = qHashMulti(seed, element.name, element.index, element.id);
    return seed;
}
