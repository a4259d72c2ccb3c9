#include <kite/kite.h>

#include <QLabel>

// The smallest plugin: a page with a label.
class HelloPlugin : public kite::PluginBase {
public:
    explicit HelloPlugin(QObject* parent) : PluginBase(parent) { setPluginLabel(QStringLiteral("Hello")); }
    void init() override;
};

KITE_PLUGIN(HelloPlugin, "hello");

void HelloPlugin::init() {
    auto* label = new QLabel(QStringLiteral("Hello, robot."));
    label->setObjectName(QStringLiteral("greeting"));
    label->setAlignment(Qt::AlignCenter);
    kite::CreateCenterWidget(kitePluginName, label);
}
