#include "vynhintmanager.h"

#include "vynuikey.h"

#include <qapplicationsettings.h>
#include <qcorewindowcontroller.h>
#include <vyncommonconstants.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>

namespace {

QVariantList hiddenHints()
{
    return QApplicationSettings::sharedSettings(nullptr)
        ->retrieveSetting(VynUIKey::Settings::HiddenHint, VynUIKey::Settings::HiddenHints,
                          QVariantList(), VynUIKey::Settings::VynUIGroup)
        .toList();
}

// Every live manager, so that a control can find the one of its window.
QList<VynHintManager*>& liveManagers()
{
    static QList<VynHintManager*> s_managers;
    return s_managers;
}

void saveHiddenHints(const QVariantList& list)
{
    QApplicationSettings::sharedSettings(nullptr)->saveSetting(
        list, VynUIKey::Settings::HiddenHint, VynUIKey::Settings::HiddenHints,
        VynUIKey::Settings::VynUIGroup, true);
}

} // namespace

VynHintManager::VynHintManager(QObject* parent) : QObject(parent)
{
    liveManagers().append(this);
}

VynHintManager::~VynHintManager()
{
    // Hints outlive the manager unless they are its children; none may call back into it.
    for (VynHintData* hint : std::as_const(m_queue))
        stopObservingHint(hint);
    stopObservingHint(m_presentedHint);
    m_queue.clear();
    m_presentedHint = nullptr;
    liveManagers().removeAll(this);
}

VynHintManager* VynHintManager::managerForQmlObject(QObject* object, QObject** parentItem)
{
    if (parentItem)
        *parentItem = nullptr;
    QQuickWindow* window = QCoreWindowController::windowForQmlObject(object);
    if (!window)
        return nullptr;
    auto* found = qobject_cast<VynHintManager*>(window->property("hintManager").value<QObject*>());
    if (!found) {
        for (VynHintManager* manager : std::as_const(liveManagers())) {
            if (QCoreWindowController::windowForQmlObject(manager) == window) {
                found = manager;
                break;
            }
        }
    }
    if (found && parentItem)
        *parentItem = window->contentItem();
    return found;
}

bool VynHintManager::scheduleHint(const QString& p_identifier, QObject* p_presentingView,
                                  const QString& p_title, const QString& p_detail,
                                  bool p_hasDontShowAgainAction, int p_duration, double p_width)
{
    auto* hint = new VynHintData(this);
    hint->setIdentifier(p_identifier);
    hint->setTitle(p_title);
    hint->setString(p_detail);
    hint->setDuration(p_duration);
    hint->setPresentingView(p_presentingView);
    hint->setPreferredWidth(p_width);
    hint->setHasDontShowAgainAction(p_hasDontShowAgainAction);
    return scheduleHint(hint);
}

bool VynHintManager::scheduleHint(const QString& p_identifier, QObject* p_presentingView,
                                  const QString& p_title, const QString& p_detail,
                                  bool p_hasDontShowAgainAction, int p_duration)
{
    return scheduleHint(p_identifier, p_presentingView, p_title, p_detail, p_hasDontShowAgainAction,
                        p_duration, VynHintData::DefaultWidth);
}

bool VynHintManager::scheduleHint(const QString& p_identifier, QObject* p_presentingView,
                                  const QString& p_title, const QString& p_detail,
                                  bool p_hasDontShowAgainAction)
{
    return scheduleHint(p_identifier, p_presentingView, p_title, p_detail, p_hasDontShowAgainAction,
                        VynHintData::DefaultDuration, VynHintData::DefaultWidth);
}

bool VynHintManager::scheduleHint(const QString& p_identifier, QObject* p_presentingView,
                                  const QString& p_title, const QString& p_detail)
{
    return scheduleHint(p_identifier, p_presentingView, p_title, p_detail, false, 6000,
                        VynHintData::DefaultWidth);
}

bool VynHintManager::scheduleHint(const QString& p_identifier, QObject* p_presentingView,
                                  const QString& p_title)
{
    return scheduleHint(p_identifier, p_presentingView, p_title, kVynNullString, false, 6000,
                        VynHintData::DefaultWidth);
}

void VynHintManager::release(VynHintData* hint)
{
    if (hint && hint->parent() == this)
        hint->deleteLater();
}

bool VynHintManager::scheduleHint(VynHintData* p_hintData)
{
    VynHintData* hint = p_hintData;
    if (!hint)
        return false;

    if (!hint->presentingView() || hint->identifier().isEmpty() ||
        (hint->hasDontShowAgainAction() && !shouldShowHint(hint->identifier()))) {
        emit hint->completion(false);
        release(hint);
        return false;
    }

    if (!m_presentedHint) {
        startObservingHint(hint);
        presentHint(hint);
        return true;
    }

    if (hint == m_presentedHint || m_presentedHint->isSimilarToHint(hint)) {
        presentNextHint();
        return false;
    }

    if (m_presentedHint->identifier() == hint->identifier()) {
        startObservingHint(hint);
        presentHint(hint);
        return false;
    }

    VynHintData* found = getHintWithIdentifier(hint->identifier());
    if (found == hint)
        return true;
    if (found) {
        m_queue.removeAll(found);
        stopObservingHint(found);
        release(found);
    }
    startObservingHint(hint);
    m_queue.append(hint);
    return true;
}

void VynHintManager::presentHint(VynHintData* hint)
{
    if (hint == m_presentedHint)
        return;
    if (VynHintData* previous = m_presentedHint) {
        if (!m_queue.contains(previous)) {
            emit previous->completion(false);
            stopObservingHint(previous);
            release(previous);
        }
        if (m_timer)
            m_timer->stop();
    }
    m_presentedHint = hint;
    if (hint) {
        m_queue.removeAll(hint);
        if (hint->duration() > 0) {
            if (!m_timer) {
                m_timer = new QTimer(this);
                m_timer->setSingleShot(true);
                connect(m_timer, &QTimer::timeout, this, &VynHintManager::onPresentationTimeout);
            } else {
                m_timer->stop();
            }
            m_timer->start(hint->duration());
        }
    }
    emit presentedHintChanged();
}

void VynHintManager::presentNextHint()
{
    presentHint(m_queue.isEmpty() ? nullptr : m_queue.first());
}

void VynHintManager::onPresentationTimeout()
{
    presentNextHint();
}

void VynHintManager::invalidateHint(VynHintData* p_hintData)
{
    if (!p_hintData)
        return;
    if (p_hintData == m_presentedHint) {
        presentNextHint();
        return;
    }
    if (!m_queue.contains(p_hintData))
        return;
    emit p_hintData->completion(false);
    stopObservingHint(p_hintData);
    m_queue.removeAll(p_hintData);
    release(p_hintData);
}

void VynHintManager::invalidateHint(const QString& p_hintIdentifier)
{
    // Qt 6.4's QML engine scores a hint object as badly for a VynHintData* parameter as for a
    // QString one, and so calls this overload with the object's text, "ClassName(0x...)" or
    // "ClassName(0x..., \"name\")". Such a text is matched against the hints held here (their
    // addresses only: nothing unknown is dereferenced), so that invalidateHint(hint) from QML
    // works as it does from C++.
    static const QRegularExpression objectText(
        QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*\\(0x([0-9a-fA-F]+)(?:\\)|, )"));
    const QRegularExpressionMatch match = objectText.match(p_hintIdentifier);
    if (match.hasMatch()) {
        bool ok = false;
        const quintptr address = match.captured(1).toULongLong(&ok, 16);
        const auto held = [address](const VynHintData* hint) {
            return reinterpret_cast<quintptr>(hint) == address;
        };
        if (ok && m_presentedHint && held(m_presentedHint)) {
            invalidateHint(m_presentedHint);
            return;
        }
        const auto queued = std::find_if(m_queue.cbegin(), m_queue.cend(), held);
        if (ok && queued != m_queue.cend()) {
            invalidateHint(*queued);
            return;
        }
    }
    invalidateHint(getHintWithIdentifier(p_hintIdentifier));
}

void VynHintManager::invalidateHintsWithPrefix(const QString& p_hintIdentifierPrefix)
{
    const QList<VynHintData*> queued = m_queue;
    for (VynHintData* hint : queued) {
        if (!m_queue.contains(hint) || !hint->identifier().startsWith(p_hintIdentifierPrefix))
            continue;
        emit hint->completion(false);
        stopObservingHint(hint);
        release(hint);
        m_queue.removeAll(hint);
    }
    if (m_presentedHint && m_presentedHint->identifier().startsWith(p_hintIdentifierPrefix))
        presentNextHint();
}

bool VynHintManager::shouldShowHint(VynHintData* p_hintData)
{
    return p_hintData && shouldShowHint(p_hintData->identifier());
}

VynHintData* VynHintManager::getPresentedHintCopy(QObject* p_parent)
{
    if (!m_presentedHint)
        return nullptr;
    return new VynHintData(*m_presentedHint, p_parent);
}

VynHintData* VynHintManager::getPresentedHintCopy()
{
    return getPresentedHintCopy(nullptr);
}

void VynHintManager::onHintClosed(VynHintData* p_hintData)
{
    if (m_presentedHint && p_hintData && p_hintData->isSimilarToHint(m_presentedHint))
        presentNextHint();
}

bool VynHintManager::shouldShowHint(const QString& identifier)
{
    const QVariantList list = hiddenHints();
    for (const QVariant& entry : list) {
        if (entry.toString() == identifier)
            return false;
    }
    return true;
}

void VynHintManager::dontShowAgainHint(const QString& identifier)
{
    QVariantList list = hiddenHints();
    for (const QVariant& entry : std::as_const(list)) {
        if (entry.toString() == identifier)
            return;
    }
    list.append(QVariant(identifier));
    saveHiddenHints(list);
}

void VynHintManager::resetHiddenHints()
{
    saveHiddenHints(QVariantList());
}

bool VynHintManager::hasHiddenHints()
{
    return !hiddenHints().isEmpty();
}

VynHintData* VynHintManager::getHintWithIdentifier(const QString& identifier) const
{
    for (VynHintData* hint : m_queue) {
        if (hint->identifier() == identifier)
            return hint;
    }
    if (m_presentedHint && m_presentedHint->identifier() == identifier)
        return m_presentedHint;
    return nullptr;
}

void VynHintManager::startObservingHint(VynHintData* hint)
{
    if (!hint)
        return;
    connect(hint, &QObject::destroyed, this, &VynHintManager::onHintDestroyed,
            Qt::UniqueConnection);
    connect(hint, &VynHintData::presentingViewDestroyed, this,
            &VynHintManager::onPresentingViewDestroyed, Qt::UniqueConnection);
}

void VynHintManager::stopObservingHint(VynHintData* hint)
{
    if (!hint)
        return;
    disconnect(hint, &QObject::destroyed, this, &VynHintManager::onHintDestroyed);
    disconnect(hint, &VynHintData::presentingViewDestroyed, this,
               &VynHintManager::onPresentingViewDestroyed);
}

void VynHintManager::onHintDestroyed()
{
    // The sender is half destroyed: it is compared by address only, never called.
    QObject* dying = sender();
    if (!dying)
        return;
    if (dying == m_presentedHint) {
        // A hint that no longer exists gets no completion; the next one takes its place.
        m_presentedHint = nullptr;
        if (m_timer)
            m_timer->stop();
        VynHintData* next = m_queue.isEmpty() ? nullptr : m_queue.first();
        if (next) {
            presentHint(next);
        } else {
            emit presentedHintChanged();
        }
        return;
    }
    m_queue.removeIf([dying](VynHintData* hint) { return hint == dying; });
}

void VynHintManager::onPresentingViewDestroyed()
{
    invalidateHint(qobject_cast<VynHintData*>(sender()));
}
