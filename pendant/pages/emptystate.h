#pragma once

#include <QLabel>
#include <QWidget>

namespace pendant {

/// What stands where there is nothing to show yet: what would be here and how to get it there.
class EmptyState : public QWidget {
    Q_OBJECT

public:
    explicit EmptyState(QWidget* parent = nullptr);

    void setTexts(const QString& title, const QString& text);
    /// Lines to be typed or looked up as they are, such as paths.
    void setLines(const QStringList& lines);

private:
    QLabel* m_title;
    QLabel* m_text;
    QLabel* m_lines;
};

} // namespace pendant
