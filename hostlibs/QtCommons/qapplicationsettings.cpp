#include "qapplicationsettings.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

// File layout: the 8-byte magic, the payload's length and its CRC-16 (both
// 32-bit, big-endian), then the payload: the store's QVariantMap in QDataStream
// version Qt_6_0.
constexpr char kMagic[] = "QTCSET01";
constexpr qsizetype kMagicSize = 8;
constexpr qsizetype kHeaderSize = kMagicSize + 8;
constexpr QDataStream::Version kStreamVersion = QDataStream::Qt_6_0;

QPointer<QApplicationSettings> s_shared;

quint32 readUInt32(const QByteArray& data, qsizetype offset)
{
    quint32 result = 0;
    for (qsizetype i = 0; i < 4; ++i)
        result = (result << 8) | static_cast<quint8>(data.at(offset + i));
    return result;
}

void appendUInt32(QByteArray& data, quint32 value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        data.append(static_cast<char>((value >> shift) & 0xff));
}

} // namespace

QApplicationSettings::QApplicationSettings(const QString& fileName, QObject* parent)
    : QObject(parent), m_fileName(fileName.isEmpty() ? defaultFileName() : fileName)
{}

QApplicationSettings::~QApplicationSettings()
{
    sync();
}

QApplicationSettings* QApplicationSettings::sharedSettings(QObject* parent)
{
    if (!s_shared) {
        s_shared =
            new QApplicationSettings(QString(), parent ? parent : QCoreApplication::instance());
    }
    return s_shared;
}

QString QApplicationSettings::defaultFileName()
{
    QString name = QCoreApplication::applicationName();
    if (name.isEmpty())
        name = QStringLiteral("QtCommons");
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir(folder).filePath(name + QLatin1Char('/') + name + QStringLiteral(".settings"));
}

void QApplicationSettings::setFileName(const QString& fileName)
{
    const QString name = fileName.isEmpty() ? defaultFileName() : fileName;
    if (name == m_fileName)
        return;
    sync();
    m_fileName = name;
    m_values.clear();
    m_loaded = false;
    m_dirty = false;
}

QString QApplicationSettings::keyFor(const QString& group, const QString& entryKey,
                                     const QString& listKey)
{
    return group + QLatin1Char('/') + entryKey + QLatin1Char('/') + listKey;
}

QVariant QApplicationSettings::retrieveSetting(const QString& entryKey, const QString& listKey,
                                               const QVariant& defaultValue, const QString& group)
{
    load();
    return m_values.value(keyFor(group, entryKey, listKey), defaultValue);
}

bool QApplicationSettings::saveSetting(const QVariant& value, const QString& entryKey,
                                       const QString& listKey, const QString& group, bool writeNow)
{
    load();
    const QString key = keyFor(group, entryKey, listKey);
    if (value.isValid())
        m_values.insert(key, value);
    else
        m_values.remove(key);
    m_dirty = true;
    return writeNow ? write() : true;
}

bool QApplicationSettings::sync()
{
    if (!m_dirty)
        return true;
    return write();
}

bool QApplicationSettings::clear()
{
    m_loaded = true;
    m_values.clear();
    return write();
}

void QApplicationSettings::load()
{
    if (m_loaded)
        return;
    m_loaded = true;
    m_values.clear();

    QFile file(m_fileName);
    if (!file.exists())
        return;
    const auto reject = [this](const char* reason) {
        qWarning("QApplicationSettings: %s is %s; starting with no settings",
                 qPrintable(QDir::toNativeSeparators(m_fileName)), reason);
    };
    if (!file.open(QIODevice::ReadOnly)) {
        reject("unreadable");
        return;
    }
    const QByteArray data = file.readAll();
    if (data.isEmpty()) {
        reject("empty");
        return;
    }
    if (data.size() < kHeaderSize || !data.startsWith(QByteArray(kMagic, kMagicSize))) {
        reject("not a settings file");
        return;
    }
    const quint32 length = readUInt32(data, kMagicSize);
    const quint32 checksum = readUInt32(data, kMagicSize + 4);
    if (static_cast<qint64>(length) != data.size() - kHeaderSize) {
        reject("truncated");
        return;
    }
    const QByteArray payload = data.mid(kHeaderSize);
    if (qChecksum(payload) != checksum) {
        reject("damaged (checksum mismatch)");
        return;
    }
    QDataStream stream(payload);
    stream.setVersion(kStreamVersion);
    QVariantMap values;
    stream >> values;
    if (stream.status() != QDataStream::Ok || !stream.atEnd()) {
        reject("damaged (undecodable data)");
        return;
    }
    m_values = values;
}

bool QApplicationSettings::write()
{
    QByteArray payload;
    {
        QDataStream stream(&payload, QIODevice::WriteOnly);
        stream.setVersion(kStreamVersion);
        stream << m_values;
    }
    QByteArray data(kMagic, kMagicSize);
    appendUInt32(data, static_cast<quint32>(payload.size()));
    appendUInt32(data, qChecksum(payload));
    data.append(payload);

    const QFileInfo info(m_fileName);
    if (!QDir().mkpath(info.absolutePath())) {
        qWarning("QApplicationSettings: cannot create the folder of %s",
                 qPrintable(QDir::toNativeSeparators(m_fileName)));
        return false;
    }
    QSaveFile file(m_fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit()) {
        qWarning("QApplicationSettings: cannot write %s: %s",
                 qPrintable(QDir::toNativeSeparators(m_fileName)), qPrintable(file.errorString()));
        return false;
    }
    m_dirty = false;
    return true;
}
