#include "projectspage.h"

#include "emptystate.h"
#include "project/links.h"
#include "project/workspace.h"
#include "projectdetails.h"
#include "projectform.h"
#include "projectsmodel.h"
#include "rowdelegate.h"
#include "rowtable.h"

#include <QVariant>

namespace pendant {

ProjectsPage::ProjectsPage(const Theme& theme, QWidget* parent)
    : Page(QStringLiteral("projectsPage"), theme, parent), m_model(new ProjectsModel(this)),
      m_table(new QTableView(this)), m_delegate(new RowDelegate(theme, this)), m_empty(new EmptyState(this)),
      m_offline(new QLabel(this)), m_hint(new QLabel(this)), m_details(new ProjectDetails(this)),
      m_form(new ProjectForm(this)), m_new(new QPushButton(this)) {
    m_offline->setObjectName(QStringLiteral("projectsOffline"));
    m_offline->setProperty("strong", true);
    m_offline->setProperty("state", QStringLiteral("warning"));
    m_offline->setWordWrap(true);
    m_hint->setProperty("caption", true);
    m_new->setObjectName(QStringLiteral("newProject"));
    actions()->addWidget(m_new);
    makeTable();
    content()->addWidget(m_offline);
    content()->addWidget(m_table, 1);
    content()->addWidget(m_empty, 1);
    content()->addWidget(m_hint);
    content()->addWidget(m_details);
    content()->addWidget(m_form);
    connect(m_new, &QPushButton::clicked, this, [this] { setCreating(true); });
    connect(m_form, &ProjectForm::canceled, this, [this] { setCreating(false); });
    connect(m_form, &ProjectForm::created, this, &ProjectsPage::openCreated);
    connect(m_model, &ProjectsModel::refreshed, this, &ProjectsPage::showState);
    links::follow(this, [this] { showState(); });
    retranslate();
}

void ProjectsPage::makeTable() {
    m_table->setObjectName(QStringLiteral("projects"));
    m_table->setModel(m_model);
    m_table->setItemDelegate(m_delegate);
    setUpRowTable(m_table);
    m_table->setColumnWidth(ProjectsModel::Name, 208);
    m_table->setColumnWidth(ProjectsModel::State, 136);
    m_table->setColumnWidth(ProjectsModel::Created, 184);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                // A list that is read again has no current row either.
                if (current.isValid())
                    select(m_model->name(current.row()));
            });
}

void ProjectsPage::select(const QString& name) {
    m_selected = name;
    m_isCreating = false;
    showState();
}

void ProjectsPage::setCreating(bool creating) {
    m_isCreating = creating;
    showState();
    if (creating)
        m_form->start();
}

void ProjectsPage::openCreated(const QString& name) {
    m_selected = name;
    m_isCreating = false;
    Workspace::open(this, name);
    m_model->setActive(isVisible());
}

void ProjectsPage::setTheme(const Theme& theme) {
    Page::setTheme(theme);
    m_delegate->setTheme(theme);
    m_table->viewport()->update();
}

void ProjectsPage::retranslate() {
    setTitle(tr("Projects"));
    m_new->setText(tr("New project"));
    m_hint->setText(tr("Select a project to open or delete it."));
    m_offline->setText(tr("No connection: these are the projects that were there last."));
    m_details->retranslate();
    m_form->retranslate();
    // The headings are asked for anew.
    emit m_model->headerDataChanged(Qt::Horizontal, 0, ProjectsModel::ColumnCount - 1);
    showState();
}

void ProjectsPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    m_model->setActive(true);
}

void ProjectsPage::hideEvent(QHideEvent* event) {
    Page::hideEvent(event);
    m_model->setActive(false);
    m_isCreating = false;
}

void ProjectsPage::showState() {
    const bool isOnline = links::areUp();
    const int row = m_model->rowOf(m_selected);
    const bool hasRows = m_model->rowCount() > 0;
    if (row >= 0 && m_table->currentIndex().row() != row)
        m_table->selectRow(row);
    m_table->setVisible(hasRows);
    m_empty->setVisible(!hasRows && !m_isCreating);
    m_offline->setVisible(hasRows && !isOnline);
    m_new->setEnabled(isOnline && !m_isCreating);
    m_form->setVisible(m_isCreating);
    m_form->setOnline(isOnline);
    m_details->setProject(row >= 0 && !m_isCreating ? m_selected : QString(), ProjectsModel::isOpen(m_selected));
    m_details->setEnabled(isOnline);
    m_hint->setVisible(hasRows && row < 0 && !m_isCreating);
    showEmpty();
}

void ProjectsPage::showEmpty() {
    if (links::areUp())
        m_empty->setTexts(tr("No projects"), tr("The projects of this robot are listed here, a folder each in the "
                                                "workspace. Press “New project” to make one."));
    else
        m_empty->setTexts(tr("No connection to the robot"),
                          tr("The projects of this robot are listed here as soon as both links are up. “Links” in the "
                             "developer dock (F12) brings them up."));
}

} // namespace pendant
