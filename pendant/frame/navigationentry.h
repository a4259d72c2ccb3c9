#pragma once

#include <QPushButton>

namespace pendant {

/// One entry of the navigation: icon and word. A title that does not fit is cut with "..." and stands whole in the tool
/// tip and in the accessible name.
class NavigationEntry : public QPushButton {
    Q_OBJECT

public:
    NavigationEntry(const QString& title, const QString& nav, QWidget* parent);

    const QString& title() const { return m_title; }
    const QString& nav() const { return m_nav; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QString m_title;
    QString m_nav;
};

} // namespace pendant
