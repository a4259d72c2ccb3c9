#pragma once

#include "logs/logfilter.h"
#include "style/theme.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

namespace pendant {

/// Which lines of the log are shown: level, module and text, and a button that ends a search.
class LogFilterBar : public QWidget {
    Q_OBJECT

public:
    explicit LogFilterBar(QWidget* parent = nullptr);

    LogFilter filter() const;
    /// The modules to choose from; another one can be typed.
    void setModules(const QStringList& modules);
    void setSearching(bool searching) { m_stop->setEnabled(searching); }

    void setTheme(const Theme& theme);
    void retranslate();

signals:
    /// Once for what is typed without a pause.
    void changed();
    void stopPressed();

private:
    void addLevels();
    QStringList listedModules() const;

    QComboBox* m_level;
    QComboBox* m_module;
    QLineEdit* m_text;
    QAction* m_clear;
    QPushButton* m_stop;
    QTimer m_typing;
};

} // namespace pendant
