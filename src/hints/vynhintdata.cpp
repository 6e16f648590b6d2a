#include "vynhintdata.h"

#include "vynhintmanager.h"

#include <qtcommonsconstants.h>

#include <memory>

const double VynHintData::DefaultWidth = 200.0;
const int VynHintData::DefaultDuration = 6000;
const int VynHintData::LongDuration = 10000;

VynHintData::VynHintData(QObject* parent)
    : QApplicationMessage(parent), m_preferredWidth(DefaultWidth), m_duration(DefaultDuration)
{
    setType(Type_Hint);
    setLevel(Level_Note);
}

VynHintData::VynHintData(const VynHintData& other, QObject* parent)
    : QApplicationMessage(other, parent), m_identifier(other.m_identifier),
      m_presentingView(other.m_presentingView), m_preferredWidth(other.m_preferredWidth),
      m_hasDontShowAgainAction(other.m_hasDontShowAgainAction), m_duration(other.m_duration),
      m_preferredArrowOrientation(other.m_preferredArrowOrientation)
{}

VynHintData::~VynHintData() = default;

void VynHintData::setIdentifier(const QString& identifier)
{
    if (identifier == m_identifier)
        return;
    m_identifier = identifier;
    emit identifierChanged();
}

void VynHintData::setPresentingView(QObject* view)
{
    if (view == m_presentingView)
        return;
    if (m_presentingView) {
        disconnect(m_presentingView, &QObject::destroyed, this,
                   &VynHintData::onPresentingViewDestroyed);
    }
    m_presentingView = view;
    if (view)
        connect(view, &QObject::destroyed, this, &VynHintData::onPresentingViewDestroyed);
    emit presentingViewChanged();
}

void VynHintData::onPresentingViewDestroyed()
{
    m_presentingView = nullptr;
    emit presentingViewDestroyed();
}

void VynHintData::setPreferredWidth(double width)
{
    if (width == m_preferredWidth)
        return;
    m_preferredWidth = width;
    emit preferredWidthChanged();
}

void VynHintData::setHasDontShowAgainAction(bool on)
{
    if (on == m_hasDontShowAgainAction)
        return;
    m_hasDontShowAgainAction = on;
    if (on) {
        auto* action = new QApplicationMessageAction(this);
        action->setText(
            QtCommonsConstants::qLocalizedString(QStringLiteral("DONT_SHOW_AGAIN"), QString()));
        // The action hides the identifier the hint has when it runs. The text is kept
        // beside the handler so that copies of the hint, which share the handler, still
        // know it once this hint is gone.
        auto identifier = std::make_shared<QString>(m_identifier);
        connect(this, &VynHintData::identifierChanged, action,
                [this, identifier] { *identifier = m_identifier; });
        action->setHandler([identifier] { VynHintManager::dontShowAgainHint(*identifier); });
        addAction(action);
    }
    emit hasDontShowAgainActionChanged();
}

void VynHintData::setDuration(int duration)
{
    if (duration == m_duration)
        return;
    m_duration = duration;
    emit durationChanged();
}

void VynHintData::setPreferredArrowOrientation(int orientation)
{
    if (orientation == m_preferredArrowOrientation)
        return;
    m_preferredArrowOrientation = orientation;
    emit preferredArrowOrientationChanged();
}

bool VynHintData::isSimilarToHint(VynHintData* other) const
{
    if (!other)
        return false;
    return m_identifier == other->m_identifier && title() == other->title() &&
           string() == other->string() && m_presentingView == other->m_presentingView &&
           m_hasDontShowAgainAction == other->m_hasDontShowAgainAction;
}
