// How a plugin's entry leaves the host's navigation.

#include "kite/kitemodule.h"

#include "log/hostline.h"

#include "brisk/modulemanager.h"

#include <QJsonArray>
#include <QJsonObject>

namespace kite {

namespace {

// "robot.pack" -> the node "gyre.page.robot.page.pack.page"; null when the host has no such group
brisk::ModuleObject* entriesOf(const QString& group) {
    brisk::ModuleObject* pages = m(QStringLiteral("gyre.page"));
    const QString path = QString(group).replace(QLatin1Char('.'), QLatin1String(".page."));
    brisk::ModuleObject* node = pages ? pages->r(path) : nullptr;
    return node ? node->c(QStringLiteral("page"), false) : nullptr;
}

void removeFirst(QJsonArray& entries, const QString& nav) {
    for (int i = 0; i < entries.size(); ++i) {
        if (entries.at(i).toObject().value(QLatin1String("nav")).toString() != nav)
            continue;
        entries.removeAt(i);
        return;
    }
}

} // namespace

bool Kite::cancelPage(const QString& group, const QString& nav) {
    hostline::information(hostline::pluginModule()) << "kite::Kite::cancelPage";
    if (group.isEmpty())
        return false;
    brisk::ModuleObject* node = entriesOf(group);
    const QJsonValue content = node ? node->exportToJson(true) : QJsonValue();
    QJsonArray entries = content.toArray();
    hostline::information(hostline::pluginModule()) << "kite::Kite::cancelPage : " << entries;
    removeFirst(entries, nav);
    hostline::information(hostline::pluginModule()) << "kite::Kite::cancelPage : " << entries;
    // A group that holds groups is no array; an empty one in its place would take them all away.
    if (node && !content.isObject())
        node->importFromJson(this, entries, true, true, true);
    return true;
}

} // namespace kite
