#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringList>
#include <QWidget>

namespace pendant {

class ElidedLabel;

/// The selected register, its values to be edited, one a line.
class IoRegisterDetails : public QWidget {
    Q_OBJECT

public:
    explicit IoRegisterDetails(QWidget* parent = nullptr);

    /// Shows the register; hidden for one without a name. What somebody has typed stays until it is set or undone.
    void setRegister(const QString& name, const QStringList& values);
    void setOnline(bool online);
    void retranslate();

private:
    void arrange();
    void showState();
    void showValues();
    void ask();
    QStringList typed() const;

    QString m_register;
    QStringList m_values;
    bool m_isEdited = false;
    ElidedLabel* m_name;
    QLabel* m_hint;
    QPlainTextEdit* m_edit;
    QPushButton* m_undo;
    QPushButton* m_set;
};

} // namespace pendant
