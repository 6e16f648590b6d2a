#pragma once

#include "qtcommonsglobal.h"

#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantMap>

/*!
    The application's persistent settings: values kept under a group, an
    entry key and a list key, read back after the application restarts.

    Where. The shared object (sharedSettings()) stores its values in
    "<user configuration folder>/<application name>/<application name>.settings"
    (QStandardPaths::GenericConfigLocation and QCoreApplication::applicationName();
    "QtCommons" when the application has no name). A host that wants another
    file calls setFileName() before it reads or writes anything, or at any time
    later: pending changes go to the old file first, then the new file is read.

    Writing. A write never changes the file in place: the whole store is
    written to a temporary file beside it, which then replaces the old file in
    one rename. A process that dies in the middle of a write leaves the
    previous file, never half of a new one.

    Reading. The file is read once, on first use. A missing file is a first
    start and means "no settings". An empty, unreadable or damaged file (wrong
    header, truncated, failed checksum, undecodable data) also means "no
    settings": the store starts empty, one warning names the file and the
    reason, and the next write replaces the file with a sound one.

    All members are called from the GUI thread.
*/
class QTCOMMONS_EXPORT QApplicationSettings : public QObject
{
    Q_OBJECT

public:
    //! A store kept in \a fileName (empty: defaultFileName()).
    explicit QApplicationSettings(const QString& fileName = QString(), QObject* parent = nullptr);
    //! Writes pending changes (see saveSetting()).
    ~QApplicationSettings() override;

    /*!
        The application's shared store, created on first call. \a parent becomes
        its parent when it is created (later calls ignore it); without one it
        belongs to the application object, so its pending changes are written
        when the application ends. If its parent deletes it, the next call makes
        a new one.
    */
    static QApplicationSettings* sharedSettings(QObject* parent = nullptr);

    //! The file the shared store uses unless the host chooses another.
    static QString defaultFileName();

    QString fileName() const { return m_fileName; }
    //! Writes pending changes to the current file, then reads \a fileName.
    void setFileName(const QString& fileName);

    //! The value under \a group, \a entryKey and \a listKey, or \a defaultValue when none is
    //! stored.
    QVariant retrieveSetting(const QString& entryKey, const QString& listKey,
                             const QVariant& defaultValue = QVariant(),
                             const QString& group = QString());

    /*!
        Stores \a value under \a group, \a entryKey and \a listKey; an invalid
        QVariant removes the value.

        \a writeNow selects when the file changes: true writes the whole store
        to the file before the call returns (the answer says whether the write
        succeeded); false only marks the store as changed, and the change
        reaches the file with the next write: a later saveSetting() with true,
        sync(), a change of file, or the end of the store (the application's
        end for the shared one). Use true for choices that must survive a
        crash, false for values that change often (window frames while a
        window is dragged). With false the answer is always true.
    */
    bool saveSetting(const QVariant& value, const QString& entryKey, const QString& listKey,
                     const QString& group = QString(), bool writeNow = false);

    //! Writes pending changes; true when there were none or they were written.
    bool sync();
    bool hasPendingChanges() const { return m_dirty; }

    //! Drops every value and writes the empty store.
    bool clear();

private:
    static QString keyFor(const QString& group, const QString& entryKey, const QString& listKey);
    void load();
    bool write();

    QString m_fileName;
    QVariantMap m_values;
    bool m_loaded = false;
    bool m_dirty = false;
};
