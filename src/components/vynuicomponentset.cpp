#include "vynuicomponentset.h"

#include <QDebug>
#include <QPointer>

#include <algorithm>

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
    for (const Filing& filing : std::as_const(m_filings))
        disconnectComponent(filing);
}

void VynUIComponentSet::connectComponent(VynUIComponent* c, Filing& filing)
{
    filing.pathConnection =
        connect(c, &VynUIComponent::paramPathChanged, this, [this, c] { refile(c); });
    filing.destroyedConnection =
        connect(c, &QObject::destroyed, this,
                qOverload<QObject*>(&VynUIComponentSet::onComponentDestroyed));
}

void VynUIComponentSet::disconnectComponent(const Filing& filing)
{
    disconnect(filing.pathConnection);
    disconnect(filing.destroyedConnection);
}

const QList<VynUIComponent*>& VynUIComponentSet::components() const
{
    if (m_componentsStale) {
        m_components.clear();
        m_components.reserve(qsizetype(m_order.size()));
        for (const auto& entry : m_order)
            m_components.append(entry.second);
        m_componentsStale = false;
    }
    return m_components;
}

VynUIComponentSet::Filing& VynUIComponentSet::enter(VynUIComponent* c)
{
    auto it = m_filings.find(c);
    if (it == m_filings.end()) {
        it = m_filings.insert(c, Filing{++m_sequence, {}, {}, {}});
        m_order.emplace(it->order, c);
        m_componentsStale = true;
        connectComponent(c, *it);
    }
    return *it;
}

void VynUIComponentSet::fileUnder(const VynProxyParamPath& path, VynUIComponent* c)
{
    Filing& filing = enter(c);
    for (const auto& filed : std::as_const(filing.paths)) {
        if (filed.first == path)
            return;
    }
    const quint64 sequence = ++m_sequence;
    m_byPath[path].emplace(sequence, c);
    filing.paths.append({path, sequence});
}

void VynUIComponentSet::unfile(const VynProxyParamPath& path, quint64 sequence)
{
    const auto it = m_byPath.find(path);
    if (it == m_byPath.end())
        return;
    it->erase(sequence);
    if (it->empty())
        m_byPath.erase(it);
}

bool VynUIComponentSet::drop(const QObject* key, QList<VynProxyParamPath>* paths)
{
    const auto it = m_filings.constFind(key);
    if (it == m_filings.cend())
        return false;
    const Filing filing = *it;
    m_filings.erase(it);
    disconnectComponent(filing);
    m_order.erase(filing.order);
    m_componentsStale = true;
    for (const auto& filed : filing.paths) {
        unfile(filed.first, filed.second);
        if (paths)
            paths->append(filed.first);
    }
    return true;
}

void VynUIComponentSet::insert(VynUIComponent* c)
{
    if (!c || m_filings.contains(c))
        return;
    fileUnder(c->paramPath(), c);
}

void VynUIComponentSet::insert(const VynProxyParamPath& path, VynUIComponent* c)
{
    if (!c)
        return;
    // The path is taken before the connections exist, so this does not re-file c. A slot
    // on paramPathChanged() may delete c, or the set.
    if (c->paramPath().isEmpty()) {
        const QPointer<VynUIComponent> component(c);
        const QPointer<VynUIComponentSet> self(this);
        c->setParamPath(path);
        if (!component || !self)
            return;
    }
    fileUnder(path, c);
}

void VynUIComponentSet::insert(const QList<VynUIComponent*>& components)
{
    for (VynUIComponent* c : components)
        insert(c);
}

void VynUIComponentSet::remove(VynUIComponent* c)
{
    if (c)
        drop(c);
}

void VynUIComponentSet::remove(const QList<VynUIComponent*>& components)
{
    for (VynUIComponent* c : components)
        remove(c);
}

QList<VynUIComponent*> VynUIComponentSet::remove(const VynProxyParamPath& path)
{
    const QList<VynUIComponent*> removed = getComponents(path);
    m_byPath.remove(path);
    for (VynUIComponent* c : removed) {
        const auto it = m_filings.find(c);
        if (it == m_filings.end())
            continue;
        it->paths.removeIf([&path](const auto& filed) { return filed.first == path; });
        if (it->paths.isEmpty()) {
            disconnectComponent(*it);
            m_order.erase(it->order);
            m_filings.erase(it);
            m_componentsStale = true;
        }
    }
    return removed;
}

QList<VynUIComponent*> VynUIComponentSet::getComponents(const VynProxyParamPath& path) const
{
    QList<VynUIComponent*> list;
    const auto it = m_byPath.constFind(path);
    if (it == m_byPath.cend())
        return list;
    list.reserve(qsizetype(it->size()));
    for (const auto& entry : *it)
        list.append(entry.second);
    return list;
}

VynProxyParamPath VynUIComponentSet::getFirstParamPathForComponent(VynUIComponent* c) const
{
    if (!c)
        return VynProxyParamPath::EmptyPath;
    if (!c->paramPath().isEmpty())
        return c->paramPath();
    const QList<VynProxyParamPath> paths = getParamPathsForComponent(c);
    return paths.isEmpty() ? VynProxyParamPath::EmptyPath : paths.first();
}

QList<VynProxyParamPath> VynUIComponentSet::getParamPathsForComponent(VynUIComponent* c) const
{
    QList<VynProxyParamPath> paths;
    const auto it = c ? m_filings.constFind(c) : m_filings.cend();
    if (it == m_filings.cend())
        return paths;
    for (const auto& filed : it->paths)
        paths.append(filed.first);
    std::sort(paths.begin(), paths.end());
    return paths;
}

void VynUIComponentSet::updatePath(const VynProxyParamPath& oldPath,
                                   const VynProxyParamPath& newPath)
{
    // Giving a component its new path emits its paramPathChanged(), whose slots may delete
    // that component, a later one of the list, or the set: each is guarded.
    const QList<VynUIComponent*> filed = getComponents(oldPath);
    QList<QPointer<VynUIComponent>> guarded;
    guarded.reserve(filed.size());
    for (VynUIComponent* c : filed)
        guarded.append(c);
    const QPointer<VynUIComponentSet> self(this);
    for (const QPointer<VynUIComponent>& guard : std::as_const(guarded)) {
        if (!self)
            return;
        VynUIComponent* c = guard.data();
        if (!c)
            continue;
        remove(c);
        if (c->paramPath() == oldPath) {
            c->setParamPath(newPath);
            if (guard && self)
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
        for (const auto& entry : *it)
            text += QString::asprintf("%s(%8p)", entry.second->metaObject()->className(),
                                      static_cast<const void*>(entry.second));
        text += QStringLiteral(" }");
    }
    return text;
}

void VynUIComponentSet::onComponentParamPathChanged()
{
    refile(qobject_cast<VynUIComponent*>(sender()));
}

void VynUIComponentSet::refile(VynUIComponent* c)
{
    if (!c)
        return;
    remove(c);
    insert(c);
    emit componentParamPathChanged(c);
}

void VynUIComponentSet::onComponentDestroyed(QObject* p_sender)
{
    // The object is being destroyed: it is no longer a VynUIComponent. It is looked up by
    // its QObject address only, never cast down to or called into.
    QList<VynProxyParamPath> paths;
    if (!p_sender || !drop(p_sender, &paths))
        return;
    std::sort(paths.begin(), paths.end());
    for (const VynProxyParamPath& path : std::as_const(paths)) {
        // qDebug() writes to the logging category "default".
        qDebug().noquote() << "WARNING VynUIComponentSet::onComponentDestroyed: UI "
                              "component was destroyed without being removed from its "
                              "component set:"
                           << p_sender << path.getStringValue();
    }
}

void VynUIComponentSet::onComponentDestroyed()
{
    onComponentDestroyed(sender());
}
