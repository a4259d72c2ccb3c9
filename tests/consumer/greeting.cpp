#include <kite/kite.h>

#include <QLabel>

class GreetingPlugin : public kite::PluginBase {
    Q_OBJECT

public:
    explicit GreetingPlugin(QObject* parent) : PluginBase(parent) { setPluginLabel(QStringLiteral("Greeting")); }
    void init() override;
};

KITE_PLUGIN(GreetingPlugin, "greeting");

void GreetingPlugin::init() {
    kite::CreateCenterWidget(kitePluginName, new QLabel(tr("Built against the installed library.")));
    kite::ThrowLog(kitePluginName, kite::ThrowInformation, tr("Hello from outside."));
}

#include "greeting.moc"
