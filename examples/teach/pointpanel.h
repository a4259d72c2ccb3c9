#pragma once

#include "teacher.h"

#include <QGroupBox>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

/// The list of points and what can be done with them.
class PointPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit PointPanel(Teacher* teacher);

    /// Reads the list again; the pendant and other plugins change it too.
    void readAgain();
    void say(const QString& problem, const QString& otherwise);

private:
    QWidget* makeList();
    QWidget* makeActions();
    QPushButton* addButton(const QString& name, const QString& text);
    QStringList chosen() const;
    void teach(Teacher::Kind kind);
    void lift();
    void compare();
    void enableActions();

    Teacher* m_teacher;
    QTreeWidget* m_list;
    QLineEdit* m_name;
    QLabel* m_answer;
    QPushButton* m_lift = nullptr;
    QPushButton* m_compare = nullptr;
};
