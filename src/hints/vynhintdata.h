#pragma once

#include "vynuiglobal.h"

#include <qapplicationmessage.h>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>

/*!
    A hint: a short message (title, text, optional actions) shown once in a
    popover whose arrow points at its presenting view. Hints are handed to a
    VynHintManager, which shows one at a time.

    Fields and their defaults: identifier (empty; a hint without one is never
    shown, and don't-show-again stores it), presentingView (null; not owned,
    watched for destruction), preferredWidth (DefaultWidth), hasDontShowAgainAction
    (false), duration (DefaultDuration ms; 0 or less shows the hint until it is
    closed) and preferredArrowOrientation (0, VynPopover.ArrowDefault). The
    message type is Type_Hint and the level Level_Note.

    setHasDontShowAgainAction(true) adds an action, titled with the localised
    "DONT_SHOW_AGAIN", that hides the hint's identifier for good
    (VynHintManager::dontShowAgainHint() with the identifier the hint has when
    the action runs). The flag is one-way: setting it back to false removes no
    action, and setting it true again adds a second one.
*/
class VYNUI_EXPORT VynHintData : public QApplicationMessage
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString identifier READ identifier WRITE setIdentifier NOTIFY identifierChanged)
    Q_PROPERTY(QObject* presentingView READ presentingView WRITE setPresentingView NOTIFY
                   presentingViewChanged)
    Q_PROPERTY(double preferredWidth READ preferredWidth WRITE setPreferredWidth NOTIFY
                   preferredWidthChanged)
    Q_PROPERTY(bool hasDontShowAgainAction READ hasDontShowAgainAction WRITE
                   setHasDontShowAgainAction NOTIFY hasDontShowAgainActionChanged)
    Q_PROPERTY(int duration READ duration WRITE setDuration NOTIFY durationChanged)
    Q_PROPERTY(int preferredArrowOrientation READ preferredArrowOrientation WRITE
                   setPreferredArrowOrientation NOTIFY preferredArrowOrientationChanged)

public:
    static const double DefaultWidth; //!< 200.0, unscaled pixels
    static const int DefaultDuration; //!< 6000 ms
    static const int LongDuration;    //!< 10000 ms, for long texts

    explicit VynHintData(QObject* parent = nullptr);
    /*!
        A copy of \a other under \a parent: the message (actions included, see
        QApplicationMessage), identifier, presenting view, preferred width,
        don't-show-again flag, duration and arrow orientation. The copy keeps
        the presenting view's address only: it does not watch the view and never
        emits presentingViewDestroyed(). Copying the flag adds no action.
    */
    VynHintData(const VynHintData& other, QObject* parent);
    ~VynHintData() override;

    QString identifier() const { return m_identifier; }
    void setIdentifier(const QString& identifier);
    QObject* presentingView() const { return m_presentingView; }
    void setPresentingView(QObject* view);
    double preferredWidth() const { return m_preferredWidth; }
    void setPreferredWidth(double width);
    bool hasDontShowAgainAction() const { return m_hasDontShowAgainAction; }
    void setHasDontShowAgainAction(bool on);
    int duration() const { return m_duration; }
    void setDuration(int duration);
    int preferredArrowOrientation() const { return m_preferredArrowOrientation; }
    void setPreferredArrowOrientation(int orientation);

    /*!
        True when \a other has the same identifier, title and text, the same
        presenting view and the same don't-show-again flag. Duration, width,
        arrow orientation and level do not count. False for null.
    */
    bool isSimilarToHint(VynHintData* other) const;

signals:
    void identifierChanged();
    void presentingViewChanged();
    void preferredWidthChanged();
    //! The presenting view was destroyed; presentingView is already null.
    void presentingViewDestroyed();
    void durationChanged();
    void hasDontShowAgainActionChanged();
    void preferredArrowOrientationChanged();
    //! The hint's time with a manager ended (shown, rejected or dropped); always false.
    void completion(bool p_wasPresented);

public slots:
    void onPresentingViewDestroyed();

private:
    QString m_identifier;
    QPointer<QObject> m_presentingView;
    double m_preferredWidth;
    bool m_hasDontShowAgainAction = false;
    int m_duration;
    int m_preferredArrowOrientation = 0;
};
