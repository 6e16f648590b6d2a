#include "vynuicomponentset.h"

#include <QDebug>

namespace {

QString pointerText(const void* pointer)
{
    return QString::asprintf("%8p", pointer);
}

} // namespace

VynUIComponentSet::VynUIComponentSet(QObject* parent) : QObject(parent) {}

VynUIComponentSet::~VynUIComponentSet()
{
    // The components outlive the set: stop listening to them.
    for (VynUIComponent* c : std::as_const(m_components))
        disconnectComponent(c);
}

void VynUIComponentSet::connectComponent(VynUIComponent* c)
{
    connect(c, &VynUIComponent::paramPathChanged, this,
            &VynUIComponentSet::onComponentParamPathChanged, Qt::UniqueConnection);
    connect(c, &QObject::destroyed, this,
            qOverload<QObject*>(&VynUIComponentSet::onComponentDestroyed), Qt::UniqueConnection);
}

void VynUIComponentSet::disconnectComponent(VynUIComponent* c)
{
    disconnect(c, &VynUIComponent::paramPathChanged, this,
               &VynUIComponentSet::onComponentParamPathChanged);
    disconnect(c, &QObject::destroyed, this,
               qOverload<QObject*>(&VynUIComponentSet::onComponentDestroyed));
}

void VynUIComponentSet::fileUnder(const VynProxyParamPath& path, VynUIComponent* c)
{
    QList<VynUIComponent*>& list = m_byPath[path];
    if (!list.contains(c))
        list.append(c);
}

void VynUIComponentSet::insert(VynUIComponent* c)
{
    if (!c || m_components.contains(c))
        return;
    m_components.append(c);
    fileUnder(c->paramPath(), c);
    connectComponent(c);
}

void VynUIComponentSet::insert(const VynProxyParamPath& path, VynUIComponent* c)
{
    if (!c)
        return;
    // The path is taken before the connections exist, so this does not re-file c.
    if (c->paramPath().isEmpty())
        c->setParamPath(path);
    if (!m_components.contains(c))
        m_components.append(c);
    fileUnder(path, c);
    connectComponent(c);
}

void VynUIComponentSet::insert(const QList<VynUIComponent*>& components)
{
    for (VynUIComponent* c : components)
        insert(c);
}

void VynUIComponentSet::remove(VynUIComponent* c)
{
    if (!c || !m_components.removeOne(c))
        return;
    for (auto it = m_byPath.begin(); it != m_byPath.end();) {
        it->removeAll(c);
        it = it->isEmpty() ? m_byPath.erase(it) : std::next(it);
    }
    disconnectComponent(c);
}

void VynUIComponentSet::remove(const QList<VynUIComponent*>& components)
{
    for (VynUIComponent* c : components)
        remove(c);
}

QList<VynUIComponent*> VynUIComponentSet::remove(const VynProxyParamPath& path)
{
    const QList<VynUIComponent*> removed = m_byPath.take(path);
    for (VynUIComponent* c : removed) {
        bool filedElsewhere = false;
        for (const QList<VynUIComponent*>& list : std::as_const(m_byPath))
            filedElsewhere = filedElsewhere || list.contains(c);
        if (!filedElsewhere) {
            m_components.removeOne(c);
            disconnectComponent(c);
        }
    }
    return removed;
}

QList<VynUIComponent*> VynUIComponentSet::getComponents(const VynProxyParamPath& path) const
{
    return m_byPath.value(path);
}

VynProxyParamPath VynUIComponentSet::getFirstParamPathForComponent(VynUIComponent* c) const
{
    if (!c)
        return VynProxyParamPath::EmptyPath;
    if (!c->paramPath().isEmpty())
        return c->paramPath();
    for (auto it = m_byPath.cbegin(); it != m_byPath.cend(); ++it) {
        if (it->contains(c))
            return it.key();
    }
    return VynProxyParamPath::EmptyPath;
}

QList<VynProxyParamPath> VynUIComponentSet::getParamPathsForComponent(VynUIComponent* c) const
{
    QList<VynProxyParamPath> paths;
    for (auto it = m_byPath.cbegin(); it != m_byPath.cend(); ++it) {
        if (c && it->contains(c))
            paths.append(it.key());
    }
    return paths;
}

void VynUIComponentSet::updatePath(const VynProxyParamPath& oldPath,
                                   const VynProxyParamPath& newPath)
{
    const QList<VynUIComponent*> filed = m_byPath.value(oldPath);
    for (VynUIComponent* c : filed) {
        remove(c);
        if (c->paramPath() == oldPath) {
            c->setParamPath(newPath);
            insert(c);
        } else {
            insert(newPath, c);
        }
    }
}

QString VynUIComponentSet::getDescription() const
{
    QString text = QStringLiteral("VynUIComponentSet(%1)").arg(pointerText(this));
    for (auto it = m_byPath.cbegin(); it != m_byPath.cend(); ++it) {
        text += QStringLiteral("\n  { %1:").arg(it.key().getStringValue());
        for (VynUIComponent* c : *it)
            text += QString::asprintf("%s(%8p)", c->metaObject()->className(),
                                      static_cast<const void*>(c));
        text += QStringLiteral(" }");
    }
    return text;
}

void VynUIComponentSet::onComponentParamPathChanged()
{
    auto* c = qobject_cast<VynUIComponent*>(sender());
    if (!c)
        return;
    remove(c);
    insert(c);
    emit componentParamPathChanged(c);
}

void VynUIComponentSet::onComponentDestroyed(QObject* p_sender)
{
    // The object is being destroyed: it is no longer a VynUIComponent. Compare addresses as
    // QObject pointers only, never cast down to it or call into it.
    auto isSender = [p_sender](VynUIComponent* c) { return static_cast<QObject*>(c) == p_sender; };
    if (!p_sender || m_components.removeIf(isSender) == 0)
        return;
    for (auto it = m_byPath.begin(); it != m_byPath.end();) {
        if (it->removeIf(isSender) > 0) {
            // qDebug() writes to the logging category "default".
            qDebug().noquote() << "WARNING VynUIComponentSet::onComponentDestroyed: UI "
                                  "component was destroyed without being removed from its "
                                  "component set:"
                               << p_sender << it.key().getStringValue();
        }
        it = it->isEmpty() ? m_byPath.erase(it) : std::next(it);
    }
}

void VynUIComponentSet::onComponentDestroyed()
{
    onComponentDestroyed(sender());
}
