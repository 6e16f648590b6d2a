// The entry point that the QML engine loads. The plugin class itself lives in
// the backing library, where hosts can reach VynUIPlugin::initializeTypes();
// this subclass only carries the plugin metadata (IID, class name, uri).

#include "vynuiplugin.h"

namespace VynUIPluginEntry {

class VynUIPlugin : public ::VynUIPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlEngineExtensionInterface_iid URI "VynUI")

public:
    using ::VynUIPlugin::VynUIPlugin;
};

} // namespace VynUIPluginEntry

#include "vynuipluginentry.moc"
