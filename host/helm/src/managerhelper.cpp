#include "helm/managerhelper.h"

#include "brisk/channel.h"
#include "brisk/relay.h"
#include "helm/messagelist.h"
#include "tarp/modulelabel.h"

#include <QDir>

using brisk::standin::Channel;

namespace helm {

namespace {

// Qt takes letters and digits in the name of a search path: "my_weld" -> "myweld"
QString aliasOf(const QString& name) {
    QString alias;
    for (const QChar c : name) {
        if (c.isLetterOrNumber())
            alias += c;
    }
    return alias;
}

standin::MessageLevel levelOf(const QString& word) {
    if (word == QLatin1String("error"))
        return standin::MessageLevel::Error;
    if (word == QLatin1String("warning"))
        return standin::MessageLevel::Warning;
    if (word != QLatin1String("info"))
        qWarning("A message has the level \"%s\"; the levels are info, warning and error.", qUtf8Printable(word));
    return standin::MessageLevel::Information;
}

} // namespace

struct ManagerHelper::Private {
    ControllerManager controllerManager;
    SettingManager settingManager;
    TaskNetworkManager taskNetworkManager;
};

ManagerHelper::ManagerHelper() {
    // The bus's own node tells of its link before the managers do.
    relay();
    d.reset(new Private);
    for (Channel* channel : {Channel::bus(), Channel::controller()}) {
        connect(channel, &Channel::noticed, this, [](const QString& text) {
            standin::MessageList::instance()->add(standin::MessageLevel::Warning, QStringLiteral("controller"), text);
        });
    }
}
ManagerHelper::~ManagerHelper() = default;

ManagerHelper* ManagerHelper::instance() {
    static ManagerHelper helper;
    return &helper;
}

ControllerManager* ManagerHelper::controllerManager() const {
    return &d->controllerManager;
}
SettingManager* ManagerHelper::settingManager() const {
    return &d->settingManager;
}
TaskNetworkManager* ManagerHelper::taskNetworkManager() const {
    return &d->taskNetworkManager;
}

void ManagerHelper::registQrcAlias(const QString& name) {
    const QString alias = aliasOf(name);
    // One letter would be taken for a drive.
    if (alias.size() < 2)
        return;
    const QString folder = QStringLiteral(":/") + name;
    if (!QDir::searchPaths(alias).contains(folder))
        QDir::addSearchPath(alias, folder);
}

void ManagerHelper::throwLog(QObject* sender, const QString& word, const QString& message) {
    standin::MessageList::instance()->add(levelOf(word), tarp::standin::moduleLabel(sender), message);
}

} // namespace helm
