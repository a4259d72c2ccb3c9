#pragma once

#include "state/signals.h"
#include "style/theme.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <functional>

namespace pendant {

class ElidedLabel;

/// The selected signal and what can be done to it: an output is set, an input is forced and released.
class IoSignalDetails : public QWidget {
    Q_OBJECT

public:
    explicit IoSignalDetails(QWidget* parent = nullptr);

    /// Shows `signal`; hidden for one without a name. A number that somebody has typed stays until the signal has it or
    /// it is undone.
    void setSignal(const Signal& signal);
    /// Whether anything can be asked of the controller.
    void setOnline(bool online);
    void setTheme(const Theme& theme);
    void retranslate();

private:
    QPushButton* addButton(const QString& name, const std::function<void()>& press);
    void showSignal();
    void showNumber();
    void setEdited(bool edited);
    void showUndo();
    bool showsWhatIsTyped() const;
    void ask(const QVariant& value);

    Signal m_signal;
    bool m_isEdited = false; ///< the number in the field is somebody's and not the signal's
    ElidedLabel* m_name;
    QLabel* m_type;
    QDoubleSpinBox* m_number;
    QPushButton* m_undo;
    QPushButton* m_off;
    QPushButton* m_on;
    QPushButton* m_set;
    QPushButton* m_release;
};

} // namespace pendant
