#pragma once

#include "qtcommonsglobal.h"

#include <QFlags>
#include <QHash>
#include <QMutex>
#include <QObject>
#include <QString>

class QFile;

namespace QLogger {
Q_NAMESPACE_EXPORT(QTCOMMONS_EXPORT)

//! Severity of a message; a destination records the messages at or above its level.
enum LogLevel { Debug = 0, Info = 1, Error = 2, Fatal = 3 };
Q_ENUM_NS(LogLevel)

//! Where a destination writes. DefaultMode (-1) takes the manager's default mode (Full).
enum LogMode { DefaultMode = -1, Disabled = 0, OnlyConsole = 1, OnlyFile = 2, Full = 3 };
Q_ENUM_NS(LogMode)

/*!
    How a full log file is renamed before a new one starts. DefaultFileDisplay
    (-1) takes Number: "Module.log" moves to "Module.1.log" (the next free
    number); DateTime moves it to "Module_20260101-120000-000.log", or, when a
    file of that time already exists (rotations within one millisecond), to
    "Module_20260101-120000-000-1.log", "-2" and so on: a rotation never
    replaces an earlier file.
*/
enum LogFileDisplay { DefaultFileDisplay = -1, DateTime = 0, Number = 1 };
Q_ENUM_NS(LogFileDisplay)

//! Fields written on each line. No flag at all (Default) writes every field.
enum LogMessageDisplay {
    Default = 0x00,
    ShowDateTime = 0x01,
    ShowLevel = 0x02,
    ShowModule = 0x04,
    ShowThreadId = 0x08,
    ShowFunction = 0x10,
    ShowFileAndLine = 0x20,
};
Q_DECLARE_FLAGS(LogMessageDisplays, LogMessageDisplay)
Q_FLAG_NS(LogMessageDisplays)

/*!
    The application's logger: named destinations ("modules"), each writing to
    its own file, and a console echo on stderr.

    getInstance() creates the process-wide manager on first use;
    instanceIsAlive() tells whether it exists without creating it (libraries
    use it to log only when the host set logging up). destroyInstance() closes
    every file and deletes the manager.

    addDestination() declares a module once (later calls for the same module
    are ignored and return false). Its file is "<fileDest>" or, when empty,
    "<module>.log", in its folder or, when empty, the manager's default folder
    (setDefaultFolder(); initially "logs" under the application's local data
    location). Files are created on the first message and appended to; one
    reaching maximumFileSize() is renamed as its LogFileDisplay says and a new
    one is started.

    enqueueMessage() writes synchronously, so a line is on disk when the call
    returns, and may be called from any thread. A message at or above the
    destination's level goes to its file (modes OnlyFile and Full); a message
    at or above consoleLevel() also goes to stderr (modes OnlyConsole and
    Full). A message for an unknown module is not written to any file; it
    still reaches stderr at or above consoleLevel(). Every written message is
    also announced through messageLogged().

    Line format, fields in this order, each when displayed:
    "2026-01-01 12:00:00.000 Error [Module] {0x7f..} text (function file:line)".
*/
class QTCOMMONS_EXPORT QLoggerManager : public QObject
{
    Q_OBJECT

public:
    static bool instanceIsAlive();
    static QLoggerManager* getInstance();
    static void destroyInstance();

    bool addDestination(const QString& fileDest, const QString& module, int level,
                        const QString& fileFolderDestination = QString(), int mode = DefaultMode,
                        int fileDisplay = DefaultFileDisplay,
                        LogMessageDisplays messageDisplays = Default);
    bool hasDestination(const QString& module) const;
    //! Closes the module's file and forgets the module; false when it was unknown.
    bool removeDestination(const QString& module);

    void enqueueMessage(const QString& module, int level, const QString& message,
                        const QString& function = QString(), const QString& file = QString(),
                        int line = -1);

    //! Absolute path of the module's current file, empty for an unknown module.
    QString fileNameForModule(const QString& module) const;

    QString defaultFolder() const;
    //! Used by destinations added afterwards without a folder of their own.
    void setDefaultFolder(const QString& folder);
    int consoleLevel() const;
    void setConsoleLevel(int level);
    qint64 maximumFileSize() const;
    //! Bytes; a value below 1 KiB is raised to 1 KiB.
    void setMaximumFileSize(qint64 bytes);

    //! Flushes every open file.
    void flush();

signals:
    //! A message was written (to a file or to stderr); \a line is the formatted line.
    void messageLogged(const QString& module, int level, const QString& line);

private:
    struct Destination
    {
        QString filePath;
        int level = Error;
        int mode = Full;
        int fileDisplay = Number;
        LogMessageDisplays displays;
        QFile* file = nullptr;
    };

    QLoggerManager();
    ~QLoggerManager() override;

    static QString formatLine(const QString& module, int level, const QString& message,
                              const QString& function, const QString& file, int line,
                              LogMessageDisplays displays);
    bool writeToFile(Destination& destination, const QString& line);
    void rotate(Destination& destination);

    mutable QMutex m_mutex;
    QHash<QString, Destination> m_destinations;
    QString m_defaultFolder;
    int m_consoleLevel = Error;
    qint64 m_maximumFileSize = 1024 * 1024;
};

} // namespace QLogger

Q_DECLARE_OPERATORS_FOR_FLAGS(QLogger::LogMessageDisplays)
