#pragma once

#include "vynuiglobal.h"

#include "vynuicomponent.h"

#include <vynproxyparampath.h>

#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

#include <map>

/*!
    The host's index of component models by parameter path: every component
    that shows a parameter is found from the parameter's path.

    The set does not own its components. It keeps them filed under their
    current path: when a component's paramPath changes, the set files it under
    the new path only and emits componentParamPathChanged(). A component
    destroyed while still in the set is dropped everywhere, with a debug
    message in the logging category "default" for each path list it was in
    (the host should remove components before destroying them).

    Paths order as VynProxyParamPath orders them. Entries whose list becomes
    empty are erased. Null and unknown components are ignored by every operation.

    Cost: the set keeps, for every component, the paths it is filed under, and
    every list in insertion order under a sequence number, so that inserting,
    removing, re-filing and contains() cost O(log n) whatever the number of
    components under one path; components() rebuilds its list once after a
    change (O(n)).

    Host slots may delete a component synchronously from inside the set's own
    calls (for instance from paramPathChanged() while updatePath() or
    insert(path, c) gives the component its new path): the set stops working on
    a component as soon as it is destroyed, and drops it as it drops any
    destroyed component.
*/
class VYNUI_EXPORT VynUIComponentSet : public QObject
{
    Q_OBJECT

public:
    explicit VynUIComponentSet(QObject* parent = nullptr);
    ~VynUIComponentSet() override;

    //! Files \a c under its own paramPath; a component already in the set is ignored.
    void insert(VynUIComponent* c);
    //! Files \a c under \a path; c takes \a path as its paramPath first when its own is empty.
    void insert(const VynProxyParamPath& path, VynUIComponent* c);
    void insert(const QList<VynUIComponent*>& components);

    void remove(VynUIComponent* c);
    void remove(const QList<VynUIComponent*>& components);
    //! Takes out the entry of \a path and returns its components, which are disconnected
    //! (those still filed under another path stay in the set).
    QList<VynUIComponent*> remove(const VynProxyParamPath& path);

    QList<VynUIComponent*> getComponents(const VynProxyParamPath& path) const;
    const QList<VynUIComponent*>& components() const;
    bool contains(VynUIComponent* c) const { return c && m_filings.contains(c); }
    QList<VynProxyParamPath> paths() const { return m_byPath.keys(); }

    VynProxyParamPath getFirstParamPathForComponent(VynUIComponent* c) const;
    QList<VynProxyParamPath> getParamPathsForComponent(VynUIComponent* c) const;

    //! Moves every component filed under \a oldPath to \a newPath, renaming the paramPath of
    //! those whose own path was \a oldPath.
    void updatePath(const VynProxyParamPath& oldPath, const VynProxyParamPath& newPath);

    //! "VynUIComponentSet(0x...)" and one "{ path:Class(0x...)... }" line per path, for logs.
    QString getDescription() const;

signals:
    void componentParamPathChanged(VynUIComponent* p_component);

public slots:
    void onComponentParamPathChanged();
    void onComponentDestroyed(QObject* p_sender);
    void onComponentDestroyed();

private:
    // A list in insertion order: sequence number of the insertion -> component.
    using Ordered = std::map<quint64, VynUIComponent*>;
    // Where a component is: its place in components() and the paths it is filed under,
    // each with the sequence number of its place in that path's list.
    struct Filing
    {
        quint64 order = 0;
        QList<QPair<VynProxyParamPath, quint64>> paths;
        // The re-filing connection names its component: QObject::sender() costs time in
        // the number of objects connected to the set.
        QMetaObject::Connection pathConnection;
        QMetaObject::Connection destroyedConnection;
    };

    void connectComponent(VynUIComponent* c, Filing& filing);
    static void disconnectComponent(const Filing& filing);
    void refile(VynUIComponent* c);
    //! Adds \a c to components() when absent; returns its filing.
    Filing& enter(VynUIComponent* c);
    void fileUnder(const VynProxyParamPath& path, VynUIComponent* c);
    //! Takes the component keyed \a key out of every list; false when it was not in the set.
    bool drop(const QObject* key, QList<VynProxyParamPath>* paths = nullptr);
    void unfile(const VynProxyParamPath& path, quint64 sequence);

    // Keyed by QObject address so that a component being destroyed (no longer a
    // VynUIComponent) is still found without a cast.
    QHash<const QObject*, Filing> m_filings;
    Ordered m_order;
    QMap<VynProxyParamPath, Ordered> m_byPath;
    quint64 m_sequence = 0;
    mutable QList<VynUIComponent*> m_components;
    mutable bool m_componentsStale = false;
};
