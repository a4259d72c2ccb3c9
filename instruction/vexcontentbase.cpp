#include "kite/vexcontentbase.h"

namespace kite {

VexContentBase::VexContentBase(QWidget* parent) : QWidget(parent) {}
VexContentBase::~VexContentBase() = default;

void VexContentBase::FillWith(const QString& /*line*/) {}

QString VexContentBase::ToString() {
    return QString();
}

bool VexContentBase::CheckInsert() {
    return false;
}

bool VexContentBase::CheckReplace() {
    return false;
}

} // namespace kite
