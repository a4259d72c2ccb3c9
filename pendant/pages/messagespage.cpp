#include "messagespage.h"

#include "emptystate.h"
#include "messagedelegate.h"
#include "style/icons.h"

#include <QScroller>

using helm::standin::MessageLevel;
using helm::standin::MessageList;

namespace pendant {

MessagesPage::MessagesPage(const Theme& theme, QWidget* parent)
    : Page(QStringLiteral("messagesPage"), theme, parent), m_filter(new MessageFilter(this)),
      m_delegate(new MessageDelegate(theme, this)), m_list(new QListView(this)), m_empty(new EmptyState(this)),
      m_all(addChoice(QStringLiteral("showAll"), MessageLevel::Information)),
      m_warnings(addChoice(QStringLiteral("showWarnings"), MessageLevel::Warning)),
      m_errors(addChoice(QStringLiteral("showErrors"), MessageLevel::Error)), m_clear(new QPushButton(this)) {
    m_clear->setObjectName(QStringLiteral("clearMessages"));
    connect(m_clear, &QPushButton::clicked, MessageList::instance(), &MessageList::clear);
    actions()->addSpacing(16);
    actions()->addWidget(m_clear);
    makeList();
    content()->addWidget(m_list, 1);
    content()->addWidget(m_empty, 1);
    m_all->setChecked(true);
    setTheme(theme);
    retranslate();
}

void MessagesPage::setTheme(const Theme& theme) {
    Page::setTheme(theme);
    m_delegate->setTheme(theme);
    m_clear->setIcon(lineIcon(QStringLiteral("clear"), theme.color(QStringLiteral("text")), theme));
    m_clear->setIconSize({24, 24});
}

void MessagesPage::retranslate() {
    setTitle(tr("Messages"));
    m_all->setText(tr("All"));
    m_warnings->setText(tr("Warnings and errors"));
    m_errors->setText(tr("Errors"));
    m_clear->setText(tr("Clear"));
    showState();
}

QPushButton* MessagesPage::addChoice(const QString& name, MessageLevel lowest) {
    auto* choice = new QPushButton(this);
    choice->setObjectName(name);
    choice->setCheckable(true);
    choice->setAutoExclusive(true);
    connect(choice, &QPushButton::clicked, this, [this, lowest] {
        m_filter->setLowest(lowest);
        showState();
    });
    actions()->addWidget(choice);
    return choice;
}

void MessagesPage::makeList() {
    m_list->setObjectName(QStringLiteral("messages"));
    m_list->setModel(m_filter);
    m_list->setItemDelegate(m_delegate);
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QScroller::grabGesture(m_list->viewport(), QScroller::LeftMouseButtonGesture);
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, &MessagesPage::showState);
    connect(m_filter, &QAbstractItemModel::rowsRemoved, this, &MessagesPage::showState);
    connect(m_filter, &QAbstractItemModel::modelReset, this, &MessagesPage::showState);
}

void MessagesPage::showState() {
    const bool nothing = m_filter->rowCount() == 0;
    const bool filtered = MessageList::instance()->rowCount() > 0;
    m_list->setVisible(!nothing);
    m_empty->setVisible(nothing);
    m_clear->setEnabled(filtered);
    if (filtered)
        m_empty->setTexts(tr("Nothing of this kind"), tr("“All” shows the messages of the other levels."));
    else
        m_empty->setTexts(tr("No messages"), tr("What the pendant and its plugins have to tell appears here, the "
                                                "newest first."));
}

} // namespace pendant
