#include "logfilterbar.h"

#include "style/icons.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace pendant {

namespace {

const int typingPauseMs = 250;

} // namespace

LogFilterBar::LogFilterBar(QWidget* parent)
    : QWidget(parent), m_level(new QComboBox(this)), m_module(new QComboBox(this)), m_text(new QLineEdit(this)),
      m_clear(m_text->addAction(QIcon(), QLineEdit::TrailingPosition)), m_stop(new QPushButton(this)) {
    m_level->setObjectName(QStringLiteral("logLevel"));
    m_module->setObjectName(QStringLiteral("logModule"));
    m_text->setObjectName(QStringLiteral("logText"));
    m_stop->setObjectName(QStringLiteral("logStop"));
    m_module->setEditable(true);
    m_module->setInsertPolicy(QComboBox::NoInsert);
    m_module->setMinimumWidth(168);
    m_module->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_module->setCompleter(nullptr);
    m_module->lineEdit()->setClearButtonEnabled(false);
    m_stop->setEnabled(false);
    addLevels();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_level);
    row->addWidget(m_module);
    row->addWidget(m_text, 1);
    row->addWidget(m_stop);
    m_clear->setVisible(false);
    connect(m_clear, &QAction::triggered, m_text, &QLineEdit::clear);
    connect(m_text, &QLineEdit::textChanged, m_clear,
            [this](const QString& text) { m_clear->setVisible(!text.isEmpty()); });
    m_typing.setInterval(typingPauseMs);
    m_typing.setSingleShot(true);
    const auto changedNow = [this] {
        m_typing.stop();
        emit changed();
    };
    connect(&m_typing, &QTimer::timeout, this, &LogFilterBar::changed);
    connect(m_level, QOverload<int>::of(&QComboBox::activated), this, changedNow);
    connect(m_module, QOverload<int>::of(&QComboBox::activated), this, changedNow);
    connect(m_module, &QComboBox::editTextChanged, &m_typing, QOverload<>::of(&QTimer::start));
    connect(m_text, &QLineEdit::textChanged, &m_typing, QOverload<>::of(&QTimer::start));
    connect(m_text, &QLineEdit::returnPressed, this, changedNow);
    connect(m_stop, &QPushButton::clicked, this, &LogFilterBar::stopPressed);
}

LogFilter LogFilterBar::filter() const {
    LogFilter filter;
    filter.levels = m_level->currentData().toInt();
    filter.module = m_module->currentText();
    filter.text = m_text->text();
    return filter;
}

void LogFilterBar::setModules(const QStringList& modules) {
    // An open list is not taken from under the finger.
    if (modules == listedModules() || m_module->view()->isVisible())
        return;
    const QSignalBlocker quiet(m_module);
    QLineEdit* edit = m_module->lineEdit();
    const QString typed = edit->text();
    const int cursor = edit->cursorPosition();
    const int selected = edit->selectionStart();
    const int length = edit->selectedText().size();
    m_module->clear();
    m_module->addItems(modules);
    edit->setText(typed);
    edit->setCursorPosition(cursor);
    if (length > 0)
        edit->setSelection(selected, length);
}

QStringList LogFilterBar::listedModules() const {
    QStringList modules;
    for (int i = 0; i < m_module->count(); ++i)
        modules << m_module->itemText(i);
    return modules;
}

void LogFilterBar::setTheme(const Theme& theme) {
    m_clear->setIcon(lineIcon(QStringLiteral("close"), theme.color(QStringLiteral("text")), theme));
    m_stop->setIcon(lineIcon(QStringLiteral("stop"), theme.color(QStringLiteral("text")), theme));
    m_stop->setIconSize({24, 24});
}

void LogFilterBar::retranslate() {
    const QStringList levels{tr("All levels"), tr("Errors"),      tr("Without service"),
                             tr("Service"),    tr("Information"), tr("Other lines")};
    for (int i = 0; i < levels.size(); ++i)
        m_level->setItemText(i, levels.at(i));
    m_level->setAccessibleName(tr("Level"));
    m_module->lineEdit()->setPlaceholderText(tr("Module"));
    m_module->setAccessibleName(tr("Module"));
    m_text->setPlaceholderText(tr("Find text"));
    m_text->setAccessibleName(m_text->placeholderText());
    m_clear->setText(tr("Clear"));
    m_stop->setText(tr("Stop"));
}

void LogFilterBar::addLevels() {
    const int withoutService = LogFilter::AllLevels & ~LogFilter::Service;
    for (const int levels : {int(LogFilter::AllLevels), int(LogFilter::Error), withoutService, int(LogFilter::Service),
                             int(LogFilter::Information), int(LogFilter::Other)})
        m_level->addItem(QString(), levels);
}

} // namespace pendant
