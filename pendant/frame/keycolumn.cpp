#include "keycolumn.h"

#include "elidedlabel.h"
#include "hardkey.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

using ot::gyre::standin::ButtonPage;
using ot::gyre::standin::ButtonPages;

namespace pendant {

namespace {

const int columnWidth = 88;
const int gap = 8;
const int captionHeight = 16;
const int keyHeight = 56;
const int rowHeight = captionHeight + keyHeight + gap + keyHeight + gap;

const int topHeight = gap + keyHeight + gap;

int rowCount(const ButtonPage& page) {
    return std::max({page.first.size(), page.second.size(), page.captions.size()});
}

HardKey* makeKey(const Theme& theme, QWidget* parent, int y) {
    auto* key = new HardKey(theme, parent);
    key->setGeometry(gap, y, columnWidth - 2 * gap, keyHeight);
    key->show();
    return key;
}

void bind(HardKey* key, const ButtonPage& page, const QList<helm::PhysicalButton>& buttons, int row,
          const QString& place) {
    key->setObjectName(QStringLiteral("key:%1:%2:%3").arg(page.name).arg(row).arg(place));
    if (row < buttons.size())
        key->assign(buttons.at(row), page.source);
    else
        key->blank();
}

void unbind(HardKey* key) {
    key->setObjectName(QString());
    key->blank();
}

} // namespace

KeyColumn::KeyColumn(const Theme& theme, QWidget* parent)
    : QWidget(parent), m_theme(theme), m_turn(makeKey(theme, this, gap)) {
    setObjectName(QStringLiteral("keys"));
    setFixedWidth(columnWidth);
    m_turn->setObjectName(QStringLiteral("keyPage"));
    connect(ButtonPages::instance(), &ButtonPages::changed, this, &KeyColumn::refresh);
    makeRows();
    dress();
    refresh();
}

KeyColumn::~KeyColumn() = default;

void KeyColumn::setTheme(const Theme& theme) {
    m_theme = theme;
    dress();
}

QString KeyColumn::currentPage() const {
    return m_sheets.isEmpty() ? QString() : m_sheets.at(m_current).page.name;
}

QStringList KeyColumn::sheets() const {
    QStringList titles;
    for (const Sheet& sheet : m_sheets)
        titles.append(title(sheet));
    return titles;
}

bool KeyColumn::showPage(const QString& page) {
    for (int i = 0; i < m_sheets.size(); ++i) {
        if (m_sheets.at(i).page.name != page)
            continue;
        m_current = i;
        fill();
        return true;
    }
    return false;
}

void KeyColumn::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), m_theme.color(QStringLiteral("bezel")));
    if (!m_sheets.isEmpty() || m_rows.isEmpty())
        return;
    painter.setPen(m_theme.color(QStringLiteral("bezelText")));
    QFont words = font();
    words.setPixelSize(13);
    painter.setFont(words);
    painter.drawText(rect().adjusted(4, 0, -4, 0).intersected(QRect(0, 0, width(), topHeight)),
                     Qt::AlignCenter | Qt::TextWordWrap, tr("No keys in use"));
}

void KeyColumn::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    makeRows();
    dress();
    refresh();
}

void KeyColumn::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        refresh();
}

void KeyColumn::refresh() {
    const QString page = currentPage();
    const int number = m_sheets.isEmpty() ? 0 : m_sheets.at(m_current).number;
    readSheets();
    m_current = 0;
    for (int i = 0; i < m_sheets.size(); ++i) {
        if (m_sheets.at(i).page.name == page && m_sheets.at(i).number == number)
            m_current = i;
    }
    fill();
}

void KeyColumn::readSheets() {
    m_sheets.clear();
    for (const ButtonPage& page : ButtonPages::instance()->pages()) {
        if (!page.enabled)
            continue;
        const int rows = std::max(1, rowCount(page));
        for (int row = 0; row < rows; row += m_rows.size())
            m_sheets.append({page, row, rows > m_rows.size() ? row / m_rows.size() + 1 : 0});
    }
}

void KeyColumn::makeRows() {
    const int count = std::max(1, (height() - topHeight) / rowHeight);
    while (m_rows.size() > count) {
        const Row row = m_rows.takeLast();
        row.caption->deleteLater();
        for (HardKey* key : {row.first, row.second}) {
            unbind(key);
            key->deleteLater();
        }
    }
    while (m_rows.size() < count) {
        const int y = topHeight + m_rows.size() * rowHeight;
        auto* caption = new ElidedLabel(this);
        caption->setAlignment(Qt::AlignCenter);
        caption->setGeometry(4, y, columnWidth - 8, captionHeight);
        caption->show();
        m_rows.append({caption, makeKey(m_theme, this, y + captionHeight),
                       makeKey(m_theme, this, y + captionHeight + keyHeight + gap)});
    }
}

void KeyColumn::fill() {
    fillTurn();
    for (int i = 0; i < m_rows.size(); ++i) {
        if (m_sheets.isEmpty())
            blankRow(i);
        else
            fillRow(i, m_sheets.at(m_current));
    }
    update();
}

void KeyColumn::fillTurn() {
    m_turn->setVisible(!m_sheets.isEmpty());
    if (m_sheets.isEmpty())
        return;
    helm::PhysicalButton button;
    button.name = title(m_sheets.at(m_current));
    button.callback = [this](bool pressed) {
        if (pressed)
            turn();
    };
    m_turn->assign(button, QString());
    m_turn->setEnabled(m_sheets.size() > 1);
}

void KeyColumn::fillRow(int index, const Sheet& sheet) {
    const Row& row = m_rows.at(index);
    const int number = sheet.firstRow + index;
    if (number >= rowCount(sheet.page)) {
        blankRow(index);
        return;
    }
    row.caption->setText(sheet.page.captions.value(number));
    bind(row.first, sheet.page, sheet.page.first, number, QStringLiteral("first"));
    bind(row.second, sheet.page, sheet.page.second, number, QStringLiteral("second"));
}

void KeyColumn::blankRow(int index) {
    const Row& row = m_rows.at(index);
    row.caption->clear();
    unbind(row.first);
    unbind(row.second);
}

void KeyColumn::turn() {
    m_current = (m_current + 1) % m_sheets.size();
    fill();
}

void KeyColumn::dress() {
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, m_theme.color(QStringLiteral("bezelText")));
    QFont words = font();
    words.setPixelSize(13);
    for (const Row& row : m_rows) {
        row.caption->setPalette(colors);
        row.caption->setFont(words);
        row.first->setTheme(m_theme);
        row.second->setTheme(m_theme);
    }
    m_turn->setTheme(m_theme);
    update();
}

QString KeyColumn::title(const Sheet& sheet) {
    return sheet.number == 0 ? sheet.page.name : QStringLiteral("%1 %2").arg(sheet.page.name).arg(sheet.number);
}

} // namespace pendant
