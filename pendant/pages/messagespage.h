#pragma once

#include "messagefilter.h"
#include "page.h"

#include <QListView>
#include <QPushButton>

namespace pendant {

class EmptyState;
class MessageDelegate;

/// Every message, the newest first, with a choice of what is shown.
class MessagesPage : public Page {
    Q_OBJECT

public:
    explicit MessagesPage(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme) override;
    MessageFilter* filter() const { return m_filter; }

protected:
    void retranslate() override;

private:
    QPushButton* addChoice(const QString& name, helm::standin::MessageLevel lowest);
    void makeList();
    void showState();

    MessageFilter* m_filter;
    MessageDelegate* m_delegate;
    QListView* m_list;
    EmptyState* m_empty;
    QPushButton* m_all;
    QPushButton* m_warnings;
    QPushButton* m_errors;
    QPushButton* m_clear;
};

} // namespace pendant
