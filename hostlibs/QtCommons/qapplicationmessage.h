#pragma once

#include "qtcommonsglobal.h"

#include "qapplicationmessageaction.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QQmlListProperty>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWindow>

#include <functional>

class QApplicationMessagePresenter;
class QCoreWindowController;

/*!
    A message for the user: title, text, level, type, a list of actions
    (buttons), an optional check box, and the window it belongs to.

    Messages are usually made and shown in one call by the static presenters
    below. Showing goes through the application's presenter (setPresenter();
    by default a QApplicationMessageQmlPresenter, a modal Qt Quick Controls
    dialog over the window). The presenter calls respond() with the index of
    the chosen action, or NoResponse (-1) when the message was dismissed
    without a choice. respond() works once: it triggers the chosen action,
    calls the completion with (response, isChecked, userData), emits
    finished() and deletes the message later. A message that the static
    presenters made owns itself; do not delete it while it is shown.

    Default button texts, used when a presenter is given empty ones, are the
    localised "OK", "CONFIRM" and "CANCEL" of the "QtCommonsLocalizable" table
    ("OK", "Confirm", "Cancel").
*/
class QTCOMMONS_EXPORT QApplicationMessage : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString string READ string WRITE setString NOTIFY stringChanged)
    Q_PROPERTY(int tag READ tag WRITE setTag NOTIFY tagChanged)
    Q_PROPERTY(int level READ level WRITE setLevel NOTIFY levelChanged)
    Q_PROPERTY(int type READ type WRITE setType NOTIFY typeChanged)
    Q_PROPERTY(
        QQmlListProperty<QApplicationMessageAction> actions READ actionsQml NOTIFY actionsChanged)
    Q_PROPERTY(int actionCount READ actionCount NOTIFY actionsChanged)
    Q_PROPERTY(bool hasCheckbox READ hasCheckbox WRITE setHasCheckbox NOTIFY checkboxChanged)
    Q_PROPERTY(QString checkboxText READ checkboxText WRITE setCheckboxText NOTIFY checkboxChanged)
    Q_PROPERTY(bool isChecked READ isChecked WRITE setChecked NOTIFY checkboxChanged)
    Q_PROPERTY(QVariant userData READ userData WRITE setUserData)
    Q_PROPERTY(bool isFinished READ isFinished NOTIFY finished)

public:
    enum Level : int { Level_Note = 0, Level_Info = 1, Level_Warn = 2, Level_Critical = 3 };
    Q_ENUM(Level)

    enum Type : int {
        Type_Basic = 0,
        Type_Confirm = 1,
        Type_Custom = 2,
        Type_Popup = 3,
        Type_Sheet = 4,
        Type_Notification = 5,
        Type_Hint = 6,
    };
    Q_ENUM(Type)

    //! Answers given to respond(): an action index, or one of these.
    enum Response { NoResponse = -1, Response_Confirm = 0, Response_Cancel = 1 };
    Q_ENUM(Response)

    using Completion =
        std::function<void(int p_response, bool p_isChecked, const QVariant& p_userData)>;

    explicit QApplicationMessage(QObject* parent = nullptr);
    /*!
        A new message with the texts, tag, level, type, check box, user data,
        window and window controllers of \a other, and a copy of each of its
        actions (same text, same handler), under \a parent. The completion is
        not copied, and the copy is not finished even when \a other is.
    */
    QApplicationMessage(const QApplicationMessage& other, QObject* parent);
    ~QApplicationMessage() override;

    QString title() const { return m_title; }
    void setTitle(const QString& title);
    QString string() const { return m_string; }
    void setString(const QString& string);
    int tag() const { return m_tag; }
    void setTag(int tag);
    int level() const { return m_level; }
    void setLevel(int level);
    int type() const { return m_type; }
    void setType(int type);

    //! Appends \a action and makes the message its parent.
    void addAction(QApplicationMessageAction* action);
    QApplicationMessageAction* addAction(const QString& text,
                                         QApplicationMessageAction::Handler handler = {});
    const QList<QApplicationMessageAction*>& actions() const { return m_actions; }
    int actionCount() const { return static_cast<int>(m_actions.size()); }
    Q_INVOKABLE bool hasAction() const { return !m_actions.isEmpty(); }
    //! Triggers the action at \a index; false when out of range.
    Q_INVOKABLE bool executeAction(int index);

    bool hasCheckbox() const { return m_hasCheckbox; }
    void setHasCheckbox(bool on);
    QString checkboxText() const { return m_checkboxText; }
    void setCheckboxText(const QString& text);
    bool isChecked() const { return m_isChecked; }
    void setChecked(bool checked);

    QVariant userData() const { return m_userData; }
    void setUserData(const QVariant& data) { m_userData = data; }

    void setCompletion(Completion completion) { m_completion = std::move(completion); }

    //! The window the message is shown over; null shows it in a window of its own.
    QWindow* window() const { return m_window; }
    void setWindow(QWindow* window) { m_window = window; }
    QList<QCoreWindowController*> windowControllers() const;
    void setWindowControllers(const QList<QCoreWindowController*>& controllers);

    //! Hands the message to the application's presenter.
    void present();
    //! Ends the message with \a response (see the class description); later calls do nothing.
    Q_INVOKABLE void respond(int response);
    bool isFinished() const { return m_finished; }

    //! Replaces the application's presenter (borrowed); null restores the default one.
    static void setPresenter(QApplicationMessagePresenter* presenter);
    static QApplicationMessagePresenter* presenter();

    //! One button (\a actionTitle, or "OK"); the completion receives 0 or NoResponse.
    static QApplicationMessage*
    presentBasicMessage(const QString& title, const QString& message, int tag, int level, int type,
                        const QString& actionTitle,
                        const QList<QCoreWindowController*>& windowControllers, QObject* parent,
                        Completion completion, const QVariant& context);
    //! Confirm and cancel buttons (\a buttonTitles, empty texts take the defaults); the
    //! completion receives Response_Confirm, Response_Cancel or NoResponse.
    static QApplicationMessage*
    presentConfirmMessage(const QString& title, const QString& message, int tag, int level,
                          int type, const QPair<QString, QString>& buttonTitles,
                          const QList<QCoreWindowController*>& windowControllers, QObject* parent,
                          Completion completion, const QVariant& context);
    //! One button per title (none: a single "OK"); the completion receives the index.
    static QApplicationMessage*
    presentCustomMessage(const QString& title, const QString& message, int tag, int level, int type,
                         const QStringList& actionTitles,
                         const QList<QCoreWindowController*>& windowControllers, QObject* parent,
                         Completion completion, const QVariant& context);
    /*!
        The gate in front of a change of a protected parameter, decided by
        \a securityType (VynCommonConstants::VynSecurityType):
        - 1 (should alert): presents a confirm message as presentConfirmMessage()
          does and calls the completion only when the user confirms; returns the message.
        - 2 (disable): the change may not happen: nothing is shown, the
          completion is not called; returns null.
        - any other value: no confirmation is needed: the completion is called at
          once with Response_Confirm; returns null.
    */
    static QApplicationMessage* presentConfirmMessageIfNeededForSecurityType(
        int securityType, const QString& title, const QString& message, int tag, int level,
        int type, const QPair<QString, QString>& buttonTitles,
        const QList<QCoreWindowController*>& windowControllers, QObject* parent,
        Completion completion, const QVariant& context);

    //! The window a message with these controllers and this parent object is shown over.
    static QWindow* resolveWindow(const QList<QCoreWindowController*>& windowControllers,
                                  QObject* parent);

signals:
    void titleChanged();
    void stringChanged();
    void tagChanged();
    void levelChanged();
    void typeChanged();
    void actionsChanged();
    void checkboxChanged();
    void finished(int response);

private:
    QQmlListProperty<QApplicationMessageAction> actionsQml();
    static QApplicationMessage* make(const QString& title, const QString& message, int tag,
                                     int level, int type,
                                     const QList<QCoreWindowController*>& windowControllers,
                                     QObject* parent, Completion completion,
                                     const QVariant& context);

    QString m_title;
    QString m_string;
    int m_tag = -1;
    int m_level = Level_Note;
    int m_type = Type_Basic;
    QList<QApplicationMessageAction*> m_actions;
    bool m_hasCheckbox = false;
    QString m_checkboxText;
    bool m_isChecked = false;
    QVariant m_userData;
    Completion m_completion;
    QPointer<QWindow> m_window;
    QList<QPointer<QCoreWindowController>> m_windowControllers;
    bool m_finished = false;
};
