#include "projectdetails.h"

#include "frame/elidedlabel.h"
#include "project/workspace.h"

#include <QDir>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QVariant>

namespace pendant {

ProjectDetails::ProjectDetails(QWidget* parent)
    : QWidget(parent), m_name(new ElidedLabel(this)), m_hint(new QLabel(this)), m_folder(new ElidedLabel(this)),
      m_problem(new QLabel(this)), m_remove(new QPushButton(this)), m_open(new QPushButton(this)),
      m_keep(new QPushButton(this)), m_confirm(new QPushButton(this)) {
    setObjectName(QStringLiteral("card"));
    setAttribute(Qt::WA_StyledBackground);
    m_name->setProperty("strong", true);
    m_hint->setObjectName(QStringLiteral("projectHint"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_folder->setProperty("caption", true);
    m_problem->setObjectName(QStringLiteral("projectNotRemoved"));
    m_problem->setProperty("state", QStringLiteral("error"));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_remove->setObjectName(QStringLiteral("removeProject"));
    m_open->setObjectName(QStringLiteral("openProject"));
    m_keep->setObjectName(QStringLiteral("keepProject"));
    m_confirm->setObjectName(QStringLiteral("confirmRemoval"));
    connect(m_remove, &QPushButton::clicked, this, [this] { ask(true); });
    connect(m_keep, &QPushButton::clicked, this, [this] { ask(false); });
    connect(m_confirm, &QPushButton::clicked, this, &ProjectDetails::remove);
    connect(m_open, &QPushButton::clicked, this, [this] { Workspace::open(this, m_project); });
    arrange();
    retranslate();
    hide();
}

void ProjectDetails::arrange() {
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    for (QWidget* text : {static_cast<QWidget*>(m_name), static_cast<QWidget*>(m_hint), static_cast<QWidget*>(m_folder),
                          static_cast<QWidget*>(m_problem)})
        texts->addWidget(text);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 12, 12, 12);
    row->setSpacing(8);
    row->addLayout(texts, 1);
    for (QPushButton* button : {m_remove, m_open, m_keep, m_confirm})
        row->addWidget(button);
}

void ProjectDetails::setProject(const QString& name, bool isOpen) {
    const bool isOther = name != m_project;
    m_project = name;
    m_isOpen = isOpen;
    setVisible(!name.isEmpty());
    if (isOther)
        m_problem->clear();
    ask(m_asks && !isOther && !isOpen);
}

void ProjectDetails::retranslate() {
    m_remove->setText(tr("Delete"));
    m_open->setText(tr("Open"));
    m_keep->setText(tr("Keep it"));
    m_confirm->setText(tr("Delete for good"));
    showTexts();
}

void ProjectDetails::ask(bool asks) {
    m_asks = asks;
    for (QPushButton* button : {m_remove, m_open}) {
        button->setVisible(!asks);
        button->setEnabled(!m_isOpen);
    }
    m_keep->setVisible(asks);
    m_confirm->setVisible(asks);
    showTexts();
}

void ProjectDetails::showTexts() {
    m_name->setText(m_project);
    m_folder->setText(QDir::toNativeSeparators(Workspace::folder(m_project)));
    if (m_asks)
        m_hint->setText(tr("Delete it with its variables, points and programs? It cannot be brought back."));
    else
        m_hint->setText(m_isOpen ? tr("This project is open. Open another one before you delete it.") : QString());
    m_hint->setVisible(!m_hint->text().isEmpty());
    m_problem->setVisible(!m_problem->text().isEmpty());
}

void ProjectDetails::remove() {
    m_problem->setText(Workspace::remove(this, m_project));
    ask(false);
}

} // namespace pendant
