#include <kite/kite.h>

#include <QLabel>

// The smallest plugin: a page with a label.
class HelloPlugin : public kite::PluginBase {
public:
    explicit HelloPlugin(QObject* parent) : PluginBase(parent), module(static_cast<kite::Kite*>(parent)) {
        setPluginLabel(QStringLiteral("Hello"));
    }

    void init() override {
        auto* label = new QLabel(QStringLiteral("Hello, robot."));
        label->setObjectName(QStringLiteral("greeting"));
        label->setAlignment(Qt::AlignCenter);
        module->createCenterWidgte(label);
    }

private:
    kite::Kite* module;
};

KITE_PLUGIN(HelloPlugin, "hello");
