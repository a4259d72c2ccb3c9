#include "projectsmodel.h"

#include "project/links.h"
#include "project/projectkeys.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"

using brisk::ModuleObject;

namespace pendant {

ProjectsModel::ProjectsModel(QObject* parent)
    : QAbstractTableModel(parent), m_refresh(projectkeys::refresh()), m_open(projectkeys::name()) {
    setObjectName(QStringLiteral("projects"));
    m_timer.setSingleShot(true);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &ProjectsModel::refresh);
    for (const FollowedNode* followed : {&m_refresh, &m_open}) {
        connect(followed, &FollowedNode::renewed, this, &ProjectsModel::listen);
        listen(followed->node());
    }
    links::follow(this, [this] { refreshSoon(); });
}

void ProjectsModel::listen(ModuleObject* node) {
    connect(node, &ModuleObject::changed, this, &ProjectsModel::refreshSoon);
    refreshSoon();
}

void ProjectsModel::setActive(bool active) {
    m_isActive = active;
    if (active)
        refresh();
}

void ProjectsModel::refreshSoon() {
    if (m_isActive)
        m_timer.start();
}

void ProjectsModel::refresh() {
    if (links::isBusUp()) {
        beginResetModel();
        m_rows = read();
        endResetModel();
    }
    emit refreshed();
}

QVector<ProjectsModel::Row> ProjectsModel::read() {
    QVector<Row> rows;
    const ModuleObject* list = relay()->get(this, QStringLiteral("backup.backup_list"));
    const QList<ModuleObject*> projects = list ? list->cmobjs() : QList<ModuleObject*>();
    for (ModuleObject* project : projects) {
        const ModuleObject* name = project->c(QStringLiteral("name"));
        if (name)
            rows.append({name->getString(), Workspace::info(name->getString())});
    }
    return rows;
}

int ProjectsModel::rowOf(const QString& name) const {
    for (int row = 0; row < m_rows.size(); ++row) {
        if (m_rows.at(row).name == name)
            return row;
    }
    return -1;
}

bool ProjectsModel::isOpen(const QString& name) {
    return m(projectkeys::name())->getString() == Workspace::reference(name);
}

int ProjectsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows.size();
}

int ProjectsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ProjectsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole)
        return QVariant();
    return text(m_rows.at(index.row()), index.column());
}

QString ProjectsModel::text(const Row& row, int column) const {
    switch (column) {
    case Name:
        return row.name;
    case State:
        return isOpen(row.name) ? tr("Open") : QString();
    case Created:
        return row.info.created;
    default:
        return QString(row.info.description).replace(QLatin1Char('\n'), QLatin1Char(' '));
    }
}

QVariant ProjectsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Name:
        return tr("Name");
    case State:
        return tr("State");
    case Created:
        return tr("Created");
    default:
        return tr("Description");
    }
}

} // namespace pendant
