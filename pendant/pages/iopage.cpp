#include "iopage.h"

#include "emptystate.h"
#include "ioregistersmodel.h"
#include "ioregisterspart.h"
#include "iosignalspart.h"
#include "project/links.h"
#include "state/statelink.h"
#include "style/icons.h"

#include <QVariant>

namespace pendant {

IoPage::IoPage(const Theme& theme, QWidget* parent)
    : Page(QStringLiteral("ioPage"), theme, parent), m_find(new QLineEdit(this)), m_count(new QLabel(this)),
      m_forcedIcon(new QLabel(this)), m_forcedText(new QLabel(this)), m_releaseAll(new QPushButton(this)),
      m_keepForced(new QPushButton(this)), m_releaseNow(new QPushButton(this)), m_offline(new QWidget(this)),
      m_offlineIcon(new QLabel(m_offline)), m_offlineText(new QLabel(m_offline)), m_stack(new QStackedWidget(this)),
      m_signals(new IoSignalsPart(theme, this)), m_registers(new IoRegistersPart(theme, this)),
      m_empty(new EmptyState(this)) {
    addPart(Inputs, QStringLiteral("ioInputs"));
    addPart(Outputs, QStringLiteral("ioOutputs"));
    addPart(Registers, QStringLiteral("ioRegistersPart"));
    m_parts.button(Inputs)->setChecked(true);
    arrange();
    connect(m_find, &QLineEdit::textChanged, m_signals->model(), &IoSignalsModel::setFilter);
    connect(m_find, &QLineEdit::textChanged, m_registers, &IoRegistersPart::setFilter);
    connect(m_find, &QLineEdit::textChanged, this, &IoPage::showState);
    connect(m_releaseAll, &QPushButton::clicked, this, [this] { askToRelease(true); });
    connect(m_keepForced, &QPushButton::clicked, this, [this] { askToRelease(false); });
    connect(m_releaseNow, &QPushButton::clicked, this, &IoPage::releaseAll);
    connect(m_signals->model(), &IoSignalsModel::refreshed, this, &IoPage::showState);
    connect(m_registers->model(), &RecordsModel::refreshed, this, &IoPage::showState);
    statelink::follow(this, [this] { showOnline(); });
    setTheme(theme);
    retranslate();
}

void IoPage::addPart(Part part, const QString& name) {
    auto* choice = new QPushButton(this);
    choice->setObjectName(name);
    choice->setCheckable(true);
    m_parts.addButton(choice, part);
    actions()->addWidget(choice);
    connect(choice, &QPushButton::clicked, this, &IoPage::showPart);
}

void IoPage::arrange() {
    m_find->setObjectName(QStringLiteral("findSignal"));
    m_find->setClearButtonEnabled(true);
    m_find->setMinimumWidth(160);
    m_count->setObjectName(QStringLiteral("ioCount"));
    m_count->setProperty("caption", true);
    m_forcedText->setObjectName(QStringLiteral("ioForced"));
    m_forcedText->setProperty("strong", true);
    m_forcedText->setProperty("state", QStringLiteral("warning"));
    m_releaseAll->setObjectName(QStringLiteral("ioReleaseAll"));
    m_keepForced->setObjectName(QStringLiteral("ioKeepForced"));
    m_releaseNow->setObjectName(QStringLiteral("ioReleaseNow"));
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_find, 1);
    row->addWidget(m_count);
    row->addWidget(m_forcedIcon);
    row->addWidget(m_forcedText);
    for (QPushButton* button : {m_releaseAll, m_keepForced, m_releaseNow})
        row->addWidget(button);
    m_offlineText->setObjectName(QStringLiteral("ioOffline"));
    m_offlineText->setProperty("strong", true);
    m_offlineText->setProperty("state", QStringLiteral("warning"));
    m_offlineText->setWordWrap(true);
    auto* banner = new QHBoxLayout(m_offline);
    banner->setContentsMargins(0, 4, 0, 4);
    banner->addWidget(m_offlineIcon);
    banner->addWidget(m_offlineText, 1);
    m_stack->addWidget(m_signals);
    m_stack->addWidget(m_registers);
    content()->addLayout(row);
    content()->addWidget(m_offline);
    content()->addWidget(m_stack, 1);
    content()->addWidget(m_empty, 1);
}

void IoPage::setTheme(const Theme& theme) {
    Page::setTheme(theme);
    const QColor warning = theme.color(QStringLiteral("warning"));
    m_forcedIcon->setPixmap(linePixmap(QStringLiteral("forced"), warning, 24));
    m_offlineIcon->setPixmap(linePixmap(QStringLiteral("link-down"), warning, 24));
    m_signals->setTheme(theme);
    m_registers->setTheme(theme);
}

void IoPage::retranslate() {
    setTitle(tr("Signals"));
    m_parts.button(Inputs)->setText(tr("Inputs"));
    m_parts.button(Outputs)->setText(tr("Outputs"));
    m_parts.button(Registers)->setText(tr("Registers"));
    m_find->setPlaceholderText(tr("Find by name"));
    m_releaseAll->setText(tr("Release all"));
    m_keepForced->setText(tr("Keep them"));
    m_signals->retranslate();
    m_registers->retranslate();
    showOnline();
}

void IoPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    m_signals->model()->setActive(true);
    m_registers->model()->setActive(true);
}

void IoPage::hideEvent(QHideEvent* event) {
    Page::hideEvent(event);
    askToRelease(false);
    m_signals->model()->setActive(false);
    m_registers->model()->setActive(false);
}

void IoPage::showPart() {
    const int part = m_parts.checkedId();
    m_stack->setCurrentIndex(part == Registers ? 1 : 0);
    if (part != Registers)
        m_signals->showInputs(part == Inputs);
    showState();
}

void IoPage::showOnline() {
    const bool online = links::isBusUp();
    m_signals->setOnline(online);
    m_registers->setOnline(online);
    m_releaseAll->setEnabled(online);
    m_releaseNow->setEnabled(online);
    m_offlineText->setText(statelink::isAwaited()
                               ? tr("The robot has not yet told its values: these may be old. It is asked again.")
                               : tr("No connection: these are the last values that were told. “Links” in the developer "
                                    "dock (F12) brings it up."));
    showState();
}

void IoPage::showState() {
    const bool areRegisters = m_parts.checkedId() == Registers;
    const int all = areRegisters ? m_registers->model()->rowCount() : m_signals->model()->allCount();
    const int shown = areRegisters ? m_registers->shownCount() : m_signals->model()->shownCount();
    m_stack->setVisible(shown > 0);
    m_empty->setVisible(shown == 0);
    m_find->setEnabled(all > 0);
    m_count->setText(shown == all ? QString::number(all) : tr("%1 of %2").arg(shown).arg(all));
    m_offline->setVisible(all > 0 && !statelink::isCurrent());
    showForced();
    if (shown == 0)
        showEmpty(all);
}

void IoPage::showEmpty(int all) {
    if (all > 0)
        return m_empty->setTexts(tr("Nothing of this name"), tr("Clear the field above to see all."));
    if (statelink::isAwaited())
        return m_empty->setTexts(tr("The robot has not yet told its values"), tr("It is asked again."));
    if (!links::isBusUp())
        return m_empty->setTexts(tr("No connection to the robot"),
                                 tr("Signals and registers are listed here as soon as the link to the bus is up. "
                                    "“Links” in the developer dock (F12) brings it up."));
    const bool areRegisters = m_parts.checkedId() == Registers;
    if (areRegisters)
        m_empty->setTexts(tr("No registers"), tr("The registers of the controller are listed here and can be changed. "
                                                 "Give its cell file a section “registers”."));
    else
        m_empty->setTexts(tr("No signals"), tr("The signals of the controller are listed here: outputs can be "
                                               "switched, inputs forced. Give its cell file a section “signals”."));
}

// Wherever they are: one that is out of sight must not be forgotten.
void IoPage::showForced() {
    const int forced = m_signals->model()->forced().size();
    m_asksToRelease = m_asksToRelease && forced > 0;
    m_forcedText->setText(tr("%1 forced").arg(forced));
    m_releaseNow->setText(tr("Release %1").arg(forced));
    for (QWidget* widget : {static_cast<QWidget*>(m_forcedIcon), static_cast<QWidget*>(m_forcedText)})
        widget->setVisible(forced > 0);
    m_releaseAll->setVisible(forced > 0 && !m_asksToRelease);
    m_keepForced->setVisible(m_asksToRelease);
    m_releaseNow->setVisible(m_asksToRelease);
}

// Whoever forced them may rely on it.
void IoPage::askToRelease(bool asks) {
    m_asksToRelease = asks;
    showForced();
}

void IoPage::releaseAll() {
    askToRelease(false);
    const QStringList forced = m_signals->model()->forced();
    for (const QString& name : forced)
        ioSignals::release(this, name);
}

} // namespace pendant
