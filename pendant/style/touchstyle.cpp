#include "touchstyle.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QStyledItemDelegate>

namespace pendant {

TouchStyle::TouchStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

namespace {

bool hasOwnDelegate(const QComboBox* combo) {
    const QByteArray type = combo->itemDelegate()->metaObject()->className();
    return type != "QComboBoxDelegate" && type != "QComboMenuDelegate";
}

const char* const emptyProperty = "empty";

void mark(QWidget* widget, bool isEmpty) {
    if (widget->property(emptyProperty) == QVariant(isEmpty))
        return;
    widget->setProperty(emptyProperty, isEmpty);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

// The field of a combo box is drawn as the combo box is.
void markEmptiness(QLineEdit* edit) {
    mark(edit, edit->text().isEmpty());
    if (auto* combo = qobject_cast<QComboBox*>(edit->parentWidget()))
        mark(combo, edit->text().isEmpty());
}

} // namespace

void TouchStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    // A style sheet draws the hint in an empty field like a value; it can tell them apart by this property only.
    auto* edit = qobject_cast<QLineEdit*>(widget);
    if (edit && !edit->property(emptyProperty).isValid()) {
        edit->setProperty(emptyProperty, edit->text().isEmpty());
        connect(edit, &QLineEdit::textChanged, this, [edit] { markEmptiness(edit); });
    }
    // The delegate that a combo box comes with draws its rows without regard to a style sheet.
    auto* combo = qobject_cast<QComboBox*>(widget);
    if (combo && !hasOwnDelegate(combo))
        combo->setItemDelegate(new QStyledItemDelegate(combo));
    if (combo && combo->lineEdit())
        combo->setProperty(emptyProperty, combo->lineEdit()->text().isEmpty());
}

int TouchStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_HeaderDefaultSectionSizeVertical:
        return 56;
    case PM_HeaderDefaultSectionSizeHorizontal:
        return 144;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
    case PM_TabBarIconSize:
    case PM_ToolBarIconSize:
        return 24;
    case PM_ScrollBarExtent:
        return 24;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return 8;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int TouchStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const {
    if (hint == SH_ComboBox_Popup)
        return 0;
    // A glove that slides over a combo box must not change its value.
    if (hint == SH_ComboBox_AllowWheelScrolling)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace pendant
