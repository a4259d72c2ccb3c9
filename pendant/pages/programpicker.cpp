#include "programpicker.h"

#include "frame/elidedlabel.h"
#include "programpickerdelegate.h"

#include <QScroller>
#include <QVBoxLayout>
#include <QVariant>

namespace pendant {

ProgramPicker::ProgramPicker(const LineTypes* types, const Theme& theme, QWidget* parent)
    : QWidget(parent), m_model(new ProgramPickerModel(types, this)), m_delegate(new ProgramPickerDelegate(theme, this)),
      m_title(new ElidedLabel(this)), m_place(new ElidedLabel(this)), m_above(new QPushButton(this)),
      m_find(new QLineEdit(this)), m_list(new QListView(this)), m_nothing(new QLabel(this)),
      m_cancel(new QPushButton(this)) {
    setObjectName(QStringLiteral("programPicker"));
    m_title->setProperty("strong", true);
    m_place->setProperty("caption", true);
    m_nothing->setProperty("caption", true);
    m_find->setObjectName(QStringLiteral("findInstruction"));
    m_find->setClearButtonEnabled(true);
    m_above->setObjectName(QStringLiteral("insertAbove"));
    m_above->setCheckable(true);
    m_cancel->setObjectName(QStringLiteral("cancelPicking"));
    m_list->setObjectName(QStringLiteral("instructionTypes"));
    m_list->setModel(m_model);
    m_list->setItemDelegate(m_delegate);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(m_list->viewport(), QScroller::LeftMouseButtonGesture);
    connect(m_list, &QListView::clicked, this, &ProgramPicker::pick);
    connect(m_list, &QListView::activated, this, &ProgramPicker::pick);
    connect(m_find, &QLineEdit::textChanged, this, &ProgramPicker::find);
    connect(m_above, &QPushButton::toggled, this, &ProgramPicker::placeChosen);
    connect(m_cancel, &QPushButton::clicked, this, &ProgramPicker::canceled);
    arrange();
    retranslate();
}

void ProgramPicker::arrange() {
    auto* names = new QVBoxLayout;
    names->setSpacing(0);
    names->addWidget(m_title);
    names->addWidget(m_place);
    auto* head = new QHBoxLayout;
    head->setSpacing(8);
    head->addLayout(names, 1);
    head->addWidget(m_above);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 12, 16, 16);
    column->setSpacing(8);
    column->addLayout(head);
    column->addWidget(m_find);
    column->addWidget(m_list, 1);
    column->addWidget(m_nothing);
    column->addWidget(m_cancel);
}

void ProgramPicker::setTheme(const Theme& theme) {
    m_delegate->setTheme(theme);
    m_list->viewport()->update();
}

void ProgramPicker::retranslate() {
    m_title->setText(tr("Choose an instruction"));
    m_find->setPlaceholderText(tr("Find by name"));
    m_nothing->setText(tr("No instruction of this name"));
    m_cancel->setText(tr("Cancel"));
    m_above->setText(tr("Above"));
    m_above->setToolTip(tr("Insert above the line at the cursor"));
}

void ProgramPicker::start() {
    m_above->setChecked(false);
    m_find->clear();
    find();
    m_list->scrollToTop();
}

void ProgramPicker::setChoice(bool offered) {
    m_above->setVisible(offered);
    if (!offered)
        m_above->setChecked(false);
}

void ProgramPicker::find() {
    m_model->read(m_find->text().trimmed());
    m_nothing->setVisible(m_model->rowCount() == 0);
}

void ProgramPicker::pick(const QModelIndex& index) {
    const QString type = index.data(ProgramPickerModel::TypeRole).toString();
    if (!type.isEmpty())
        emit picked(type);
}

} // namespace pendant
