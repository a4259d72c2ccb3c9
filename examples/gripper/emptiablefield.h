#pragma once

#include <QLineEdit>
#include <QString>
#include <QValidator>

#include <utility>

/// A QSpinBox or QDoubleSpinBox that may be empty, and so can be filled in with a tap and digits: its smallest number
/// is shown as a word in grey that goes with the first digit. Who leaves the field with something in it that is no
/// number leaves it empty; a spin box would bring its last number back.
template <typename SpinBox> class EmptiableField : public SpinBox {
    using Number = decltype(std::declval<SpinBox>().value());

public:
    /// \param wordForEmpty what an empty field shows
    explicit EmptiableField(const QString& wordForEmpty) { this->lineEdit()->setPlaceholderText(wordForEmpty); }

protected:
    QValidator::State validate(QString& text, int& cursor) const override {
        return text.isEmpty() ? QValidator::Acceptable : SpinBox::validate(text, cursor);
    }
    void fixup(QString& text) const override {
        SpinBox::fixup(text);
        int cursor = 0;
        if (validate(text, cursor) != QValidator::Acceptable)
            text.clear();
    }
    Number valueFromText(const QString& text) const override {
        return text.isEmpty() ? this->minimum() : SpinBox::valueFromText(text);
    }
    QString textFromValue(Number value) const override {
        return value > this->minimum() ? SpinBox::textFromValue(value) : QString();
    }
};
