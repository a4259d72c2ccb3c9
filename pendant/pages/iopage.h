#pragma once

#include "page.h"

#include <QButtonGroup>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>

namespace pendant {

class EmptyState;
class IoRegistersPart;
class IoSignalsPart;

/// The signals between the robot and what stands around it, live: outputs are switched, inputs forced. And the
/// registers.
class IoPage : public Page {
    Q_OBJECT

public:
    explicit IoPage(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme) override;

protected:
    void retranslate() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum Part { Inputs, Outputs, Registers };

    void addPart(Part part, const QString& name);
    void arrange();
    void showPart();
    void showOnline();
    void showState();
    void showEmpty(int all);
    void showForced();
    void askToRelease(bool asks);
    void releaseAll();

    QButtonGroup m_parts;
    QLineEdit* m_find;
    QLabel* m_count;
    QLabel* m_forcedIcon;
    QLabel* m_forcedText;
    QPushButton* m_releaseAll;
    QPushButton* m_keepForced;
    QPushButton* m_releaseNow;
    bool m_asksToRelease = false;
    QWidget* m_offline;
    QLabel* m_offlineIcon;
    QLabel* m_offlineText;
    QStackedWidget* m_stack;
    IoSignalsPart* m_signals;
    IoRegistersPart* m_registers;
    EmptyState* m_empty;
};

} // namespace pendant
