#include "qloggermanager.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QStandardPaths>
#include <QThread>

#include <cstdio>

namespace QLogger {

namespace {

QLoggerManager* s_instance = nullptr;

QString levelText(int level)
{
    switch (level) {
    case Debug:
        return QStringLiteral("Debug");
    case Info:
        return QStringLiteral("Info");
    case Error:
        return QStringLiteral("Error");
    case Fatal:
        return QStringLiteral("Fatal");
    default:
        return QStringLiteral("Level%1").arg(level);
    }
}

} // namespace

bool QLoggerManager::instanceIsAlive()
{
    return s_instance != nullptr;
}

QLoggerManager* QLoggerManager::getInstance()
{
    if (!s_instance)
        s_instance = new QLoggerManager();
    return s_instance;
}

void QLoggerManager::destroyInstance()
{
    delete s_instance;
    s_instance = nullptr;
}

QLoggerManager::QLoggerManager()
{
    const QString base = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    m_defaultFolder =
        QDir(base.isEmpty() ? QDir::tempPath() : base).filePath(QStringLiteral("logs"));
}

QLoggerManager::~QLoggerManager()
{
    QMutexLocker locker(&m_mutex);
    for (Destination& destination : m_destinations)
        delete destination.file;
    m_destinations.clear();
}

bool QLoggerManager::addDestination(const QString& fileDest, const QString& module, int level,
                                    const QString& fileFolderDestination, int mode, int fileDisplay,
                                    LogMessageDisplays messageDisplays)
{
    if (module.isEmpty())
        return false;
    QMutexLocker locker(&m_mutex);
    if (m_destinations.contains(module))
        return false;

    Destination destination;
    const QString folder =
        fileFolderDestination.isEmpty() ? m_defaultFolder : fileFolderDestination;
    const QString fileName = fileDest.isEmpty() ? module + QStringLiteral(".log") : fileDest;
    destination.filePath =
        QFileInfo(fileName).isAbsolute() ? fileName : QDir(folder).absoluteFilePath(fileName);
    destination.level = level;
    destination.mode = (mode < Disabled || mode > Full) ? int(Full) : mode;
    destination.fileDisplay = (fileDisplay == DateTime) ? int(DateTime) : int(Number);
    destination.displays = messageDisplays;
    m_destinations.insert(module, destination);
    return true;
}

bool QLoggerManager::hasDestination(const QString& module) const
{
    QMutexLocker locker(&m_mutex);
    return m_destinations.contains(module);
}

bool QLoggerManager::removeDestination(const QString& module)
{
    QMutexLocker locker(&m_mutex);
    auto it = m_destinations.find(module);
    if (it == m_destinations.end())
        return false;
    delete it->file;
    m_destinations.erase(it);
    return true;
}

QString QLoggerManager::fileNameForModule(const QString& module) const
{
    QMutexLocker locker(&m_mutex);
    return m_destinations.value(module).filePath;
}

QString QLoggerManager::defaultFolder() const
{
    QMutexLocker locker(&m_mutex);
    return m_defaultFolder;
}

void QLoggerManager::setDefaultFolder(const QString& folder)
{
    QMutexLocker locker(&m_mutex);
    m_defaultFolder = folder;
}

int QLoggerManager::consoleLevel() const
{
    QMutexLocker locker(&m_mutex);
    return m_consoleLevel;
}

void QLoggerManager::setConsoleLevel(int level)
{
    QMutexLocker locker(&m_mutex);
    m_consoleLevel = level;
}

qint64 QLoggerManager::maximumFileSize() const
{
    QMutexLocker locker(&m_mutex);
    return m_maximumFileSize;
}

void QLoggerManager::setMaximumFileSize(qint64 bytes)
{
    QMutexLocker locker(&m_mutex);
    m_maximumFileSize = qMax<qint64>(bytes, 1024);
}

void QLoggerManager::flush()
{
    QMutexLocker locker(&m_mutex);
    for (Destination& destination : m_destinations) {
        if (destination.file)
            destination.file->flush();
    }
}

QString QLoggerManager::formatLine(const QString& module, int level, const QString& message,
                                   const QString& function, const QString& file, int line,
                                   LogMessageDisplays displays)
{
    const bool all = displays == LogMessageDisplays(Default);
    QStringList parts;
    if (all || displays.testFlag(ShowDateTime))
        parts << QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
    if (all || displays.testFlag(ShowLevel))
        parts << levelText(level);
    if (all || displays.testFlag(ShowModule))
        parts << QLatin1Char('[') + module + QLatin1Char(']');
    if (all || displays.testFlag(ShowThreadId)) {
        parts << QStringLiteral("{0x%1}").arg(
            reinterpret_cast<quintptr>(QThread::currentThreadId()), 0, 16);
    }
    parts << message;
    QStringList origin;
    if ((all || displays.testFlag(ShowFunction)) && !function.isEmpty())
        origin << function;
    if ((all || displays.testFlag(ShowFileAndLine)) && !file.isEmpty())
        origin << (line >= 0 ? QStringLiteral("%1:%2").arg(QFileInfo(file).fileName()).arg(line)
                             : QFileInfo(file).fileName());
    if (!origin.isEmpty())
        parts << QLatin1Char('(') + origin.join(QLatin1Char(' ')) + QLatin1Char(')');
    return parts.join(QLatin1Char(' '));
}

void QLoggerManager::enqueueMessage(const QString& module, int level, const QString& message,
                                    const QString& function, const QString& file, int line)
{
    bool written = false;
    QString text;
    {
        QMutexLocker locker(&m_mutex);
        auto it = m_destinations.find(module);
        const bool known = it != m_destinations.end();
        const int mode = known ? it->mode : int(OnlyConsole);
        if (mode == Disabled)
            return;
        text = formatLine(module, level, message, function, file, line,
                          known ? it->displays : LogMessageDisplays(Default));
        if (known && (mode == OnlyFile || mode == Full) && level >= it->level)
            written = writeToFile(*it, text);
        if ((mode == OnlyConsole || mode == Full) && level >= m_consoleLevel) {
            const QByteArray bytes = text.toLocal8Bit();
            std::fprintf(stderr, "%s\n", bytes.constData());
            std::fflush(stderr);
            written = true;
        }
    }
    if (written)
        emit messageLogged(module, level, text);
}

bool QLoggerManager::writeToFile(Destination& destination, const QString& line)
{
    if (!destination.file) {
        QDir().mkpath(QFileInfo(destination.filePath).absolutePath());
        destination.file = new QFile(destination.filePath);
        if (!destination.file->open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
            std::fprintf(stderr, "QLoggerManager: cannot open log file %s: %s\n",
                         qPrintable(destination.filePath),
                         qPrintable(destination.file->errorString()));
            delete destination.file;
            destination.file = nullptr;
            return false;
        }
    }
    if (destination.file->size() >= m_maximumFileSize) {
        rotate(destination);
        if (!destination.file)
            return false;
    }
    destination.file->write(line.toUtf8());
    destination.file->write("\n");
    destination.file->flush();
    return true;
}

void QLoggerManager::rotate(Destination& destination)
{
    destination.file->close();
    const QFileInfo info(destination.filePath);
    const QString stem = info.absolutePath() + QLatin1Char('/') + info.completeBaseName();
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    QString target;
    if (destination.fileDisplay == DateTime) {
        // Two rotations within one millisecond get the same time: the later one takes the
        // next free "-<n>" after it, so that no rotated file is ever replaced.
        const QString base =
            stem + QLatin1Char('_') +
            QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz"));
        target = base + suffix;
        for (int number = 1; QFile::exists(target); ++number)
            target = base + QLatin1Char('-') + QString::number(number) + suffix;
    } else {
        int number = 1;
        do {
            target = stem + QLatin1Char('.') + QString::number(number++) + suffix;
        } while (QFile::exists(target));
    }
    // The target is free. Should the rename fail all the same, the full file is reopened
    // and appended to rather than lost.
    QFile::rename(destination.filePath, target);
    if (!destination.file->open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        delete destination.file;
        destination.file = nullptr;
    }
}

} // namespace QLogger
