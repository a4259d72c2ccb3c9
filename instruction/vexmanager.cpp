#include "kite/vexmanager.h"

#include "kite/vexbasewidget.h"

#include "helm/vexmanager.h"

#include <utility>

namespace kite {

namespace {

helm::VexManager* registry() {
    return helm::VexManager::getVexManager();
}

// The type goes in unescaped on purpose: lines of programs that exist are known by it.
QString bareNamePattern(const QString& type) {
    return QStringLiteral("^\\s*%1\\s*(?://.*)?$").arg(type);
}

helm::WidgetCreator wrapping(ContentFactory factory) {
    return [factory = std::move(factory)](QWidget* parent) -> helm::BaseContentWidget* {
        // What it makes its content of goes when it registers its own type anew.
        const ContentFactory own = factory;
        return new VexBaseWidget(own(), parent);
    };
}

} // namespace

VexManager::VexManager(QObject* parent) : QObject(parent) {}
VexManager::~VexManager() = default;

void VexManager::createData(const QString& group, const QString& type, const QString& describe,
                            ContentFactory insertFactory, ContentFactory propertyFactory) {
    createTypeKey(type);
    createSkeleton(type, type);
    createPattern(type, bareNamePattern(type));
    createInsDescribe(type, describe);
    createInsDefault(type, QString());
    createInsertWidget(type, std::move(insertFactory));
    createPropertyWidget(type, std::move(propertyFactory));
    createTypeToGroup(group, type);
}

void VexManager::createGroups(const QString& group, const QString& title) {
    registry()->groups.append(std::make_pair(group, title));
}

void VexManager::createTypeToGroup(const QString& group, const QStringList& types) {
    registry()->groupMembers[group] += types;
}

void VexManager::createTypeToGroup(const QString& group, const QString& type) {
    registry()->groupMembers[group].append(type);
}

void VexManager::createTypeKey(const QString& type) {
    registry()->typeKeys.append(type);
}

void VexManager::createInsDescribe(const QString& type, const QString& text) {
    registry()->descriptions.insert(type, text);
}

void VexManager::createInsDefault(const QString& type, const QString& text) {
    registry()->defaultTexts.insert(type, text);
}

void VexManager::createPattern(const QString& type, const QString& pattern) {
    registry()->patterns.insert(QLatin1String("c_") + type, pattern);
}

void VexManager::createSkeleton(const QString& type, const QString& skeleton) {
    registry()->skeletons.insert(QLatin1String("s_") + type, skeleton);
}

void VexManager::createInsertWidget(const QString& type, ContentFactory factory) {
    registry()->insertWidgets.insert(type, wrapping(std::move(factory)));
}

void VexManager::createPropertyWidget(const QString& type, ContentFactory factory) {
    registry()->propertyWidgets.insert(type, wrapping(std::move(factory)));
}

} // namespace kite
