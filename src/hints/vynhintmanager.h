#pragma once

#include "vynuiglobal.h"

#include "vynhintdata.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

class QQuickWindow;
class QTimer;

/*!
    Shows hints one at a time. A scheduled hint is shown at once when nothing
    is on screen, else it waits in a first-in, first-out queue; the presented
    hint ends when its duration runs out (a single-shot timer; duration 0 or
    less: until it is closed), when the popover reports it closed
    (onHintClosed()), when it is invalidated, or when its presenting view or
    the hint itself is destroyed. The next queued hint then takes its place.

    Scheduling (scheduleHint(VynHintData*)), in this order:
    - null: false.
    - no presenting view, no identifier, or a hint with the don't-show-again
      action whose identifier the user hid: rejected; completion(false), false.
    - nothing presented: shown, true.
    - the presented hint again, or one similar to it (isSimilarToHint()): the
      presented hint is dismissed and the next one shown, so scheduling twice
      toggles; false. The hint passed in is left alone.
    - another hint with the presented hint's identifier: shown at once in its
      place; false.
    - a queued hint with the same identifier: it is dropped without
      completion and the new hint goes to the end of the queue; true (true
      also when the queued hint is the one passed in, which keeps its place).
    - otherwise: queued, true.

    Every hint the manager lets go (finished, rejected, replaced, invalidated)
    gets completion(false), except a replaced one, and is released with
    deleteLater() only when the manager is its QObject parent, which is the case
    for the hints the convenience forms of scheduleHint() make. A hint declared
    in QML is never deleted by the manager, and the manager deletes no hint when
    it is destroyed itself (its own children go with it, as any QObject's).

    Hidden hints. dontShowAgainHint() adds an identifier to the list of hidden
    hints kept in QApplicationSettings::sharedSettings() (group
    VynUIKey::Settings::VynUIGroup, entry HiddenHint, list HiddenHints) and
    writes it at once, so it survives a restart; resetHiddenHints() empties it.
    An unreadable list counts as empty.
*/
class VYNUI_EXPORT VynHintManager : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(VynHintData* presentedHint READ presentedHint NOTIFY presentedHintChanged)

public:
    explicit VynHintManager(QObject* parent = nullptr);
    ~VynHintManager() override;

    VynHintData* presentedHint() const { return m_presentedHint; }
    //! The queued hints, in order (the presented one is never among them).
    QList<VynHintData*> queuedHints() const { return m_queue; }

    /*!
        Makes a hint under the manager with these texts and settings (shorter
        forms: width VynHintData::DefaultWidth; duration DefaultDuration; no
        don't-show-again action and 6000 ms; no detail) and schedules it.
    */
    Q_INVOKABLE bool scheduleHint(const QString& p_identifier, QObject* p_presentingView,
                                  const QString& p_title, const QString& p_detail,
                                  bool p_hasDontShowAgainAction, int p_duration, double p_width);
    Q_INVOKABLE bool scheduleHint(const QString& p_identifier, QObject* p_presentingView,
                                  const QString& p_title, const QString& p_detail,
                                  bool p_hasDontShowAgainAction, int p_duration);
    Q_INVOKABLE bool scheduleHint(const QString& p_identifier, QObject* p_presentingView,
                                  const QString& p_title, const QString& p_detail,
                                  bool p_hasDontShowAgainAction);
    Q_INVOKABLE bool scheduleHint(const QString& p_identifier, QObject* p_presentingView,
                                  const QString& p_title, const QString& p_detail);
    Q_INVOKABLE bool scheduleHint(const QString& p_identifier, QObject* p_presentingView,
                                  const QString& p_title);
    Q_INVOKABLE bool scheduleHint(VynHintData* p_hintData);
    //! Dismisses the hint if presented, drops it with completion(false) if queued.
    Q_INVOKABLE void invalidateHint(VynHintData* p_hintData);
    Q_INVOKABLE void invalidateHint(const QString& p_hintIdentifier);
    //! Drops the queued hints whose identifier starts with the prefix, then dismisses the
    //! presented one if its identifier does (case-sensitive).
    Q_INVOKABLE void invalidateHintsWithPrefix(const QString& p_hintIdentifierPrefix);
    Q_INVOKABLE bool shouldShowHint(VynHintData* p_hintData);
    //! A new copy of the presented hint owned by the caller; null when none is presented.
    Q_INVOKABLE VynHintData* getPresentedHintCopy(QObject* p_parent);
    Q_INVOKABLE VynHintData* getPresentedHintCopy();
    //! The popover showing a copy of the presented hint has closed.
    Q_INVOKABLE void onHintClosed(VynHintData* p_hintData);

    //! False when the user chose never to see \a identifier again.
    static bool shouldShowHint(const QString& identifier);
    static void dontShowAgainHint(const QString& identifier);
    static void resetHiddenHints();
    static bool hasHiddenHints();

    /*!
        The manager of the window \a object is shown in: the window's "hintManager"
        property when it holds one, else a manager declared in that window's scene (or
        made with an object of it as parent). Null when the object is in no window or the
        window has no manager. \a parentItem, when given, receives the window's content item
        (null when there is no manager).
    */
    static VynHintManager* managerForQmlObject(QObject* object, QObject** parentItem = nullptr);

    //! The first queued hint with \a identifier, else the presented one if it has it, else null.
    VynHintData* getHintWithIdentifier(const QString& identifier) const;
    void startObservingHint(VynHintData* hint);
    void stopObservingHint(VynHintData* hint);
    //! Shows the first queued hint, or none when the queue is empty.
    void presentNextHint();

signals:
    void presentedHintChanged();

public slots:
    void onPresentingViewDestroyed();
    void onPresentationTimeout();
    void onHintDestroyed();

private:
    void presentHint(VynHintData* hint);
    void release(VynHintData* hint);

    QList<VynHintData*> m_queue;
    VynHintData* m_presentedHint = nullptr;
    QTimer* m_timer = nullptr;
};
