#include "kite/pluginbase.h"

namespace kite {

class PluginBase::PluginBasePrivate {
public:
    explicit PluginBasePrivate(PluginBase* owner) : q(owner) {}
    virtual ~PluginBasePrivate() = default;

    PluginBase* q;
    bool defaultGlobalSheet = true;
    QString label;
};

PluginBase::PluginBase(QObject* parent) : QObject(parent), d(new PluginBasePrivate(this)) {}
PluginBase::~PluginBase() = default;

void PluginBase::init() {}
void PluginBase::afterInit() {}
void PluginBase::render() {}
void PluginBase::idle() {}
void PluginBase::detach() {}

void PluginBase::setDefaultGlobalSheet(bool on) {
    d->defaultGlobalSheet = on;
}
bool PluginBase::getDefaultGlobalSheet() const {
    return d->defaultGlobalSheet;
}

void PluginBase::setPluginLabel(const QString& label) {
    d->label = label;
}
QString PluginBase::getPluginLabel() const {
    return d->label;
}

} // namespace kite
