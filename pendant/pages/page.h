#pragma once

#include "style/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

namespace pendant {

/// One of the pendant's own pages: a title with room for the main action beside it, above the content.
class Page : public QWidget {
    Q_OBJECT

public:
    /// \param name the objectName of the page
    Page(const QString& name, const Theme& theme, QWidget* parent = nullptr);

    virtual void setTheme(const Theme& theme);

protected:
    void changeEvent(QEvent* event) override;
    /// Sets every text; called when the language changes.
    virtual void retranslate() = 0;

    const Theme& theme() const { return m_theme; }
    void setTitle(const QString& title) { m_title->setText(title); }
    QHBoxLayout* actions() const { return m_actions; }
    QVBoxLayout* content() const { return m_content; }

private:
    Theme m_theme;
    QLabel* m_title;
    QHBoxLayout* m_actions;
    QVBoxLayout* m_content;
};

} // namespace pendant
