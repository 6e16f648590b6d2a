#pragma once

#include "vynuiglobal.h"

#include "vynuicomponent.h"

#include <vynproxyparampath.h>

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

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
    const QList<VynUIComponent*>& components() const { return m_components; }
    bool contains(VynUIComponent* c) const { return m_components.contains(c); }
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
    void connectComponent(VynUIComponent* c);
    void disconnectComponent(VynUIComponent* c);
    void fileUnder(const VynProxyParamPath& path, VynUIComponent* c);

    QList<VynUIComponent*> m_components;
    QMap<VynProxyParamPath, QList<VynUIComponent*>> m_byPath;
};
