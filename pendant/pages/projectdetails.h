#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace pendant {

class ElidedLabel;

/// The card of the selected project: where it lies, and what can be done with it. Before it is deleted it asks.
class ProjectDetails : public QWidget {
    Q_OBJECT

public:
    explicit ProjectDetails(QWidget* parent = nullptr);

    /// An empty name hides it. Another name takes a question back.
    void setProject(const QString& name, bool isOpen);
    void retranslate();

private:
    void arrange();
    void showTexts();
    void ask(bool asks);
    void remove();

    QString m_project;
    ElidedLabel* m_name;
    QLabel* m_hint;
    ElidedLabel* m_folder;
    QLabel* m_problem;
    QPushButton* m_remove;
    QPushButton* m_open;
    QPushButton* m_keep;
    QPushButton* m_confirm;
    bool m_isOpen = false;
    bool m_asks = false;
};

} // namespace pendant
