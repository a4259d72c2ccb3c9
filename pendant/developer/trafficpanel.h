#pragma once

#include "dockpanel.h"
#include "trafficfilter.h"
#include "trafficmodel.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QTableView>

namespace pendant {

class EmptyState;

/// What goes over the bus and to the controller.
class TrafficPanel : public DockPanel {
    Q_OBJECT

public:
    explicit TrafficPanel(const Theme& theme, QWidget* parent = nullptr);

    QString title() const override { return tr("Traffic"); }
    void setLive(bool live) override;
    void setTheme(const Theme& theme) override;
    TrafficModel* model() { return &m_model; }

protected:
    void retranslate() override;

private:
    void makeTable();
    void arrange();
    void connectParts();
    void record();
    void followNewest();
    void showDetail();
    void showState();
    void askAndSave();

    TrafficModel m_model;
    TrafficFilter m_filter;
    QLineEdit* m_text;
    QComboBox* m_channel;
    QToolButton* m_pause;
    QToolButton* m_clear;
    QToolButton* m_save;
    QLabel* m_state;
    QStackedWidget* m_stack;
    QTableView* m_table;
    EmptyState* m_empty;
    QPlainTextEdit* m_detail;
    bool m_live = false;
    bool m_atEnd = true;
};

} // namespace pendant
