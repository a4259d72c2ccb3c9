#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

namespace pendant {

/// The card in which a new project is described.
class ProjectForm : public QWidget {
    Q_OBJECT

public:
    explicit ProjectForm(QWidget* parent = nullptr);

    /// Empties the fields.
    void start();
    void setOnline(bool online);
    void retranslate();

signals:
    /// The project of that name has been made.
    void created(const QString& name);
    void canceled();

private:
    void arrange();
    void showReady();
    void check();
    void create();

    QLabel* m_title;
    QLabel* m_nameLabel;
    QLineEdit* m_name;
    QLabel* m_descriptionLabel;
    QLineEdit* m_description;
    QLabel* m_problem;
    QPushButton* m_cancel;
    QPushButton* m_create;
    bool m_isOnline = false;
};

} // namespace pendant
