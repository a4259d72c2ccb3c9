#pragma once

#include "iosignalsmodel.h"
#include "style/theme.h"

#include <QLabel>
#include <QListView>
#include <QWidget>

namespace pendant {

class IoDelegate;
class IoSignalDetails;

/// The signals of one direction as a list, and what can be done to the one that is selected.
class IoSignalsPart : public QWidget {
    Q_OBJECT

public:
    explicit IoSignalsPart(const Theme& theme, QWidget* parent = nullptr);

    IoSignalsModel* model() const { return m_model; }
    void showInputs(bool inputs);
    void setOnline(bool online);
    void setTheme(const Theme& theme);
    void retranslate();

private:
    void makeList();
    void select(const QModelIndex& index);
    void showSelected();

    IoSignalsModel* m_model;
    QListView* m_list;
    IoDelegate* m_delegate;
    QLabel* m_hint;
    IoSignalDetails* m_details;
    QString m_selected;
    bool m_showsInputs = true;
};

} // namespace pendant
