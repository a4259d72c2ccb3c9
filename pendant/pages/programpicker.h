#pragma once

#include "programpickermodel.h"
#include "style/theme.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QWidget>

namespace pendant {

class ProgramPickerDelegate;

/// Where the instruction for a new line is chosen.
class ProgramPicker : public QWidget {
    Q_OBJECT

public:
    /// \param types outlives the picker
    ProgramPicker(const LineTypes* types, const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme);
    void retranslate();
    /// Shows all types as they are now.
    void start();
    void setPlace(const QString& place) { m_place->setText(place); }
    /// Whether the new line comes above the one at the cursor; below it, unless somebody chose otherwise since start().
    bool isAbove() const { return m_above->isChecked(); }
    /// Offers the choice. Without it the line comes below.
    void setChoice(bool offered);

signals:
    void picked(const QString& type);
    void canceled();
    /// isAbove() is another now.
    void placeChosen();

private:
    void arrange();
    void find();
    void pick(const QModelIndex& index);

    ProgramPickerModel* m_model;
    ProgramPickerDelegate* m_delegate;
    QLabel* m_title;
    QLabel* m_place;
    QPushButton* m_above;
    QLineEdit* m_find;
    QListView* m_list;
    QLabel* m_nothing;
    QPushButton* m_cancel;
};

} // namespace pendant
