#pragma once

#include "linegrammar.h"

#include "helm/basecontentwidget.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QVector>

namespace pendant {

/// The editor of one of the pendant's own instructions: fields with captions, and beneath them why it refuses what
/// they hold. It keeps the blanks in front of a line and the comment behind it.
class InstructionWidget : public helm::BaseContentWidget {
    Q_OBJECT

public:
    /// \param grammar outlives the widget
    InstructionWidget(const LineGrammar& grammar, QWidget* parent);

    /// A line of another instruction leaves the fields as they are, and the widget says so.
    void FillWith(const QString& line) override;
    QString ToString() override;
    bool CheckInsert() override { return check(); }
    bool CheckReplace() override { return check(); }

    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    virtual void show(const LineParts& parts) = 0;
    /// The line, without blanks in front and without a comment.
    virtual QString text() const = 0;
    /// What has to be filled in, a sentence; empty when nothing has to.
    virtual QString missing() const { return QString(); }
    virtual void retranslate() = 0;

    /// A field stands alone in its row, or beside the one before where both are halves and there is room.
    enum class Width { Whole, Half };
    QLabel* addField(QWidget* field, Width width = Width::Whole);
    /// A field that takes any name and offers some.
    static QComboBox* nameField(const QString& name, const QStringList& offered);
    /// What such a field holds, without blanks at its ends.
    static QString nameIn(const QComboBox* field) { return field->currentText().trimmed(); }

private:
    struct Cell {
        QWidget* widget; ///< caption and field
        Width width;
    };

    bool check();
    void arrange(bool hasHalves);
    int widest(Width width) const;
    void say(const QString& reason);

    const LineGrammar& m_grammar;
    LineParts m_filled;
    QGridLayout* m_grid;
    QVector<Cell> m_cells;
    bool m_hasHalves = true;
    QLabel* m_reason;
};

} // namespace pendant
