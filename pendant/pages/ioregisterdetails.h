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
    /// Values that cannot stand one a line cannot be changed here.
    void setRegister(const QString& name, const QStringList& values);
    void setOnline(bool online);
    void retranslate();

private:
    void arrange();
    void showState();
    void showValues();
    void ask();
    QStringList typed() const;
    QString noteText() const;
    bool isOvertaken() const { return m_isEdited && m_values != m_before; }

    QString m_register;
    QStringList m_values;
    QStringList m_before; ///< the values that somebody began to change
    bool m_isEdited = false;
    bool m_isLocked = false;
    ElidedLabel* m_name;
    QLabel* m_hint;
    QPlainTextEdit* m_edit;
    QLabel* m_note;
    QPushButton* m_undo;
    QPushButton* m_set;
};

} // namespace pendant
