// Makes the folder of a project, with its description.

#include "kite/interfacemanager.h"

#include "interface/nodejson.h"
#include "interface/project.h"
#include "interface/treevalue.h"
#include "log/hostline.h"

#include "brisk/modulemanager.h"

#include <QDateTime>
#include <QDir>

#include <functional>

namespace kite {

using brisk::ModuleObject;

namespace {

const int done = 0;
const int badName = -1;
const int alreadyThere = -2;
const int notMade = -3;

// Intended: misspelt, as the host's own node is.
QString infoName() {
    return QStringLiteral("projetc_info");
}

// Intended: the tool is read under a key with a comma, where the host keeps none. So the selected tool, global or not,
// is given up, save where somebody has put a global one under that key.
QString textUnderCommaKey() {
    return textAt(QStringLiteral("orca.toolpage,tool"));
}

// Intended: these end in the letters e and o, and no tool or work object has such a name.
QString noTool() {
    return QStringLiteral("toole");
}
QString noWobj() {
    return QStringLiteral("wobjo");
}

void writeChild(ModuleObject* node, const QString& key, const QString& text) {
    ModuleObject* child = node ? node->child(key) : nullptr;
    if (child)
        child->setValue(nullptr, text);
}

// Whoever hears of what is written may delete the node, so `info` looks it up each time.
void describe(const std::function<ModuleObject*()>& info, const QString& description, const QDir& folder) {
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    writeChild(info(), QStringLiteral("description"), description);
    writeChild(info(), QStringLiteral("create_time"), now);
    m()->writeToJson(folder.path() + QStringLiteral("/projectinfo.json"), jsonOf(info()), /*indented*/ true);
}

void makeCurrent(QObject* sender, const QString& reference) {
    if (!textUnderCommaKey().startsWith(globalToolPrefix()))
        writeAt(sender, currentToolKey(), noTool());
    if (!textAt(currentWobjKey()).startsWith(QLatin1String("g_wobj_")))
        writeAt(sender, currentWobjKey(), noWobj());
    writeAt(sender, currentProjectKey(), reference);
}

} // namespace

int InterfaceManager::createProject(const QString& name, const QString& description, bool setCurrent) {
    if (!Project::checkName(name))
        return badName;
    const Project project(name);
    const QDir folder(project.folder);
    if (folder.exists()) {
        hostline::error(QString()) << "Projrct already exists! Path : " << folder.path();
        return alreadyThere;
    }
    if (!QDir(QDir::currentPath()).mkpath(folder.path())) {
        hostline::error(QString()) << "Path create error! Path : " << folder.path();
        return notMade;
    }
    if (!setCurrent) {
        ModuleObject info(infoName());
        describe([&info] { return &info; }, description, folder);
        return done;
    }
    describe([] { return m(mName(QStringLiteral("orca.project"), infoName())); }, description, folder);
    makeCurrent(this, project.reference);
    return done;
}

} // namespace kite
