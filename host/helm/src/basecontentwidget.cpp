#include "helm/basecontentwidget.h"

namespace helm {

BaseContentWidget::BaseContentWidget(QWidget* parent) : QWidget(parent) {}
BaseContentWidget::~BaseContentWidget() = default;

void BaseContentWidget::FillWith(const QString&) {}
QString BaseContentWidget::ToString() {
    return QString();
}
bool BaseContentWidget::CheckInsert() {
    return false;
}
bool BaseContentWidget::CheckReplace() {
    return false;
}

} // namespace helm
