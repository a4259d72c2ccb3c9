#include "projectform.h"

#include "project/workspace.h"

#include <QGridLayout>
#include <QVariant>

namespace pendant {

ProjectForm::ProjectForm(QWidget* parent)
    : QWidget(parent), m_title(new QLabel(this)), m_nameLabel(new QLabel(this)), m_name(new QLineEdit(this)),
      m_descriptionLabel(new QLabel(this)), m_description(new QLineEdit(this)), m_problem(new QLabel(this)),
      m_cancel(new QPushButton(this)), m_create(new QPushButton(this)) {
    setObjectName(QStringLiteral("card"));
    setAttribute(Qt::WA_StyledBackground);
    m_title->setProperty("strong", true);
    m_name->setObjectName(QStringLiteral("projectName"));
    m_description->setObjectName(QStringLiteral("projectDescription"));
    m_problem->setObjectName(QStringLiteral("projectProblem"));
    m_problem->setProperty("state", QStringLiteral("error"));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_cancel->setObjectName(QStringLiteral("cancelProject"));
    m_create->setObjectName(QStringLiteral("createProject"));
    m_create->setDefault(true);
    connect(m_name, &QLineEdit::textChanged, this, &ProjectForm::check);
    connect(m_name, &QLineEdit::returnPressed, m_create, &QPushButton::click);
    connect(m_description, &QLineEdit::returnPressed, m_create, &QPushButton::click);
    connect(m_cancel, &QPushButton::clicked, this, &ProjectForm::canceled);
    connect(m_create, &QPushButton::clicked, this, &ProjectForm::create);
    arrange();
    retranslate();
}

void ProjectForm::arrange() {
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_problem, 1);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_create);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 12, 12);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    grid->addWidget(m_title, 0, 0, 1, 2);
    grid->addWidget(m_nameLabel, 1, 0);
    grid->addWidget(m_name, 1, 1);
    grid->addWidget(m_descriptionLabel, 2, 0);
    grid->addWidget(m_description, 2, 1);
    grid->addLayout(buttons, 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
}

void ProjectForm::retranslate() {
    m_title->setText(tr("New project"));
    m_nameLabel->setText(tr("Name"));
    m_descriptionLabel->setText(tr("Description"));
    m_cancel->setText(tr("Cancel"));
    m_create->setText(tr("Create and open"));
    check();
}

void ProjectForm::setOnline(bool online) {
    m_isOnline = online;
    showReady();
}

void ProjectForm::start() {
    m_name->clear();
    m_description->clear();
    check();
    m_name->setFocus();
}

void ProjectForm::showReady() {
    m_create->setEnabled(m_isOnline && Workspace::problemOfName(m_name->text()).isEmpty());
}

// An empty field is no mistake yet.
void ProjectForm::check() {
    const QString problem = Workspace::problemOfName(m_name->text());
    showReady();
    m_problem->setText(m_name->text().isEmpty() ? QString() : problem);
}

void ProjectForm::create() {
    const QString name = m_name->text();
    const QString problem = Workspace::create(name, m_description->text());
    m_problem->setText(problem);
    if (problem.isEmpty())
        emit created(name);
}

} // namespace pendant
