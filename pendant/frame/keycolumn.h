#pragma once

#include "briskx/buttonpages.h"
#include "style/theme.h"

#include <QList>
#include <QWidget>

namespace pendant {

class ElidedLabel;
class HardKey;

/// The column of physical keys at the right edge. It shows one page of buttons at a time; a page with more rows than
/// the column has goes over several sheets. The key on top turns to the next sheet.
class KeyColumn : public QWidget {
    Q_OBJECT

public:
    explicit KeyColumn(const Theme& theme, QWidget* parent = nullptr);
    ~KeyColumn() override;

    void setTheme(const Theme& theme);
    /// The name of the page that is shown; empty when there is none.
    QString currentPage() const;
    /// The pages that can be turned to, one name a sheet.
    QStringList sheets() const;
    /// Turns to the first sheet of the page; false when there is none or it is disabled.
    bool showPage(const QString& page);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Row {
        ElidedLabel* caption;
        HardKey* first;
        HardKey* second;
    };
    struct Sheet {
        ot::gyre::standin::ButtonPage page;
        int firstRow;
        int number; ///< from 1, 0 when the page has one sheet only
    };

    void refresh();
    void readSheets();
    void makeRows();
    void fill();
    void fillTurn();
    void fillRow(int index, const Sheet& sheet);
    void blankRow(int index);
    void turn();
    void dress();
    static QString title(const Sheet& sheet);

    Theme m_theme;
    HardKey* m_turn;
    QList<Row> m_rows;
    QList<Sheet> m_sheets;
    int m_current = 0;
};

} // namespace pendant
