#include "brisk/modulemanager.h"

#include "brisk/nodesbykey.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace brisk {

struct ModuleManager::Private {
    ModuleObject root{QString()};
};

ModuleManager::ModuleManager(QObject* parent) : QObject(parent), d(new Private) {}

ModuleManager::~ModuleManager() = default;

ModuleObject* ModuleManager::root() const {
    return &d->root;
}

bool ModuleManager::writeToJson(const QString& filePath, const QJsonValue& json, bool indented) {
    const QJsonDocument document = json.isObject()  ? QJsonDocument(json.toObject())
                                   : json.isArray() ? QJsonDocument(json.toArray())
                                                    : QJsonDocument(QJsonArray{json});
    QSaveFile file(filePath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    const QByteArray text = document.toJson(indented ? QJsonDocument::Indented : QJsonDocument::Compact);
    if (file.write(text) != text.size())
        file.cancelWriting(); // commit() would take a file that a full disk cut short for whole
    return file.commit();
}

} // namespace brisk

namespace {

// Stands for an item that its list does not have: whatever is written there never reaches the tree.
brisk::ModuleObject* absentItem() {
    static auto* nodes = new brisk::standin::NodesByKey;
    brisk::ModuleObject* node = nodes->emptied(QString());
    node->disconnect();
    return node;
}

} // namespace

brisk::ModuleManager* m() {
    // Never destroyed: plugins and their statics may reach for the tree until the very end.
    static auto* manager = new brisk::ModuleManager;
    return manager;
}

brisk::ModuleObject* m(const QString& key, brisk::ModuleObject* parent) {
    brisk::ModuleObject* node = (parent ? parent : m()->root())->r(key, true);
    return node ? node : absentItem();
}

QString mName(const QString& a, const QString& b) {
    return a + QLatin1Char('.') + b;
}

QString mName(const QString& a, const QString& b, const QString& c) {
    return mName(mName(a, b), c);
}
