#pragma once

#include "logrowpainter.h"
#include "logs/logplace.h"

#include <QAbstractScrollArea>
#include <QStringList>
#include <QVector>

namespace pendant {

class LogRows;
class LogText;

/// The lines of a log, the newest at the bottom. It follows what is written until somebody scrolls up. It reads the
/// rows that are on the screen and no others, so it is as quick with 200 MiB as with a page.
class LogView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit LogView(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme);
    /// What to show: rows of a text. Stays where it was as far as it can.
    void setRows(const LogText* text, const LogRows* rows);
    /// To be called when rows came or went.
    void refresh();
    /// To be called when no place of before is one; shows the newest.
    void startAnew();

    bool isFollowing() const { return m_following; }
    void follow();
    /// Makes a row the uppermost and the current one.
    void showRow(const LogPlace& row);
    /// The uppermost row on the screen.
    LogPlace top() const { return m_top; }
    /// The row that is marked; no place for none.
    LogPlace current() const { return m_current; }
    void setCurrent(const LogPlace& row);
    /// The rows on the screen, from the top.
    QVector<LogPlace> shownRows() const { return rowsIn(viewport()->height()); }
    /// The modules of the lines that have been shown, at most 100.
    const QStringList& modules() const { return m_modules; }

signals:
    void followingChanged(bool following);
    void currentChanged();
    /// Somebody scrolls, presses a row or a key.
    void handled();

protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Top {
        LogPlace row;
        int hidden; ///< px of it above the upper edge
    };

    QVector<LogPlace> rowsIn(int height) const;
    Top lowest() const;
    void scrollBy(int px);
    void settle();
    void setFollowing(bool following);
    void showPosition(const Top& lowest);
    void barMoved(int action);
    void moveCurrent(int by);
    void bringIntoView(const LogPlace& row);
    void drag(QEvent* event);
    LogPlace rowUnder(int y) const;
    void remember(const QString& module);

    const LogText* m_text = nullptr;
    const LogRows* m_rows = nullptr;
    LogRowPainter m_painter;
    LogPlace m_top;
    int m_hidden = 0;
    bool m_following = true;
    LogPlace m_current;
    LogPlace m_pressed;
    double m_dragged = 0;
    QStringList m_modules;
};

} // namespace pendant
