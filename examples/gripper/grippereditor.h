#pragma once

#include "gripperline.h"

#include <kite/vexcontentbase.h>

class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QSpinBox;

/// What the editors of both instructions have in common: a value that has to be set, a wait and a comment. A check
/// that refuses says why beneath the fields.
class GripperEditor : public kite::VexContentBase {
    Q_OBJECT

public:
    /// \param form  of the instruction's line; has to live as long as the process
    /// \param title what the value is called
    GripperEditor(const LineForm& form, const QString& title, QWidget* parent);

    /// A line that is not this instruction's leaves the value unset, and cannot be replaced; nor is a value taken over
    /// that is out of range. Both are said at once.
    void FillWith(const QString& line) override;
    QString ToString() override;
    bool CheckInsert() override;
    bool CheckReplace() override;

private:
    enum class Filled { Never, WithOwnLine, WithForeignLine };

    void makeFields();
    void layOut();
    void follow();
    void showLine(const GripperLine& line);
    GripperLine shownLine() const;
    double shownValue() const;

    QString whyForeign() const;
    QString whyOutOfRange(double value) const;
    QString whatIsAmiss() const;
    bool accept(const QString& refusal);
    void showReason(const QString& reason);

    const LineForm& m_form;
    const QString m_title;
    QDoubleSpinBox* m_value;
    QSpinBox* m_wait;
    QLineEdit* m_comment;
    QLabel* m_reason;
    Filled m_filled = Filled::Never;
};
