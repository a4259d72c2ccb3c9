#include "pointdetails.h"

#include "frame/elidedlabel.h"

#include <QHBoxLayout>
#include <QVariant>

namespace pendant {

namespace {

const int rowsAtMost = 4;

QStringList captionsOf(const QList<PointValues::Group>& groups) {
    QStringList captions;
    for (const PointValues::Group& group : groups) {
        captions << group.title;
        for (const auto& value : group.values)
            captions << value.first;
    }
    return captions;
}

QLabel* label(const QString& text, const char* property) {
    auto* made = new QLabel(text);
    made->setTextFormat(Qt::PlainText);
    made->setProperty(property, true);
    return made;
}

} // namespace

PointDetails::PointDetails(QWidget* parent) : QScrollArea(parent) {
    setObjectName(QStringLiteral("pointDetails"));
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFixedHeight(168);
}

void PointDetails::setRecord(brisk::ModuleObject* record) {
    const QList<PointValues::Group> groups = record ? PointValues::groups(record) : QList<PointValues::Group>();
    if (captionsOf(groups) != m_built)
        build(groups);
    setVisible(record);
    if (record)
        m_title->setText(PointValues::title(record));
    int next = 0;
    for (const PointValues::Group& group : groups) {
        for (const auto& value : group.values)
            m_values.at(next++)->setText(value.second);
    }
}

void PointDetails::build(const QList<PointValues::Group>& groups) {
    m_built = captionsOf(groups);
    m_values.clear();
    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("pointColumns"));
    m_title = new ElidedLabel;
    m_title->setProperty("strong", true);
    auto* row = new QHBoxLayout;
    row->setSpacing(32);
    for (const PointValues::Group& group : groups)
        row->addLayout(columnOf(group));
    row->addStretch();
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(16, 12, 16, 8);
    column->setSpacing(8);
    column->addWidget(m_title);
    column->addLayout(row);
    column->addStretch();
    setWidget(content);
}

// Title above, values in columns of four.
QGridLayout* PointDetails::columnOf(const PointValues::Group& group) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    grid->addWidget(label(group.title, "caption"), 0, 0, 1, 6);
    for (int i = 0; i < group.values.size(); ++i) {
        const int row = 1 + i % rowsAtMost;
        const int column = 3 * (i / rowsAtMost);
        auto* value = label(QString(), "live");
        value->setAlignment(Qt::AlignRight);
        grid->addWidget(label(group.values.at(i).first, "caption"), row, column);
        grid->addWidget(value, row, column + 1);
        grid->setColumnMinimumWidth(column + 2, 8);
        m_values << value;
    }
    grid->setRowStretch(rowsAtMost + 1, 1);
    return grid;
}

} // namespace pendant
