#include "kite/vexbasewidget.h"

#include <QDebug>
#include <QHBoxLayout>

namespace kite {

VexBaseWidget::VexBaseWidget(VexContentBase* contentWidget, QWidget* parent) : BaseContentWidget(parent) {
    if (!contentWidget)
        return;
    contentWidget->setParent(this);
    content = contentWidget;
    connect(content, &QObject::destroyed, this, [this] { content = nullptr; });
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(content);
}

VexBaseWidget::~VexBaseWidget() {
    // The base deletes the content when this part of the object is gone.
    if (content)
        disconnect(content, &QObject::destroyed, this, nullptr);
}

void VexBaseWidget::FillWith(const QString& line) {
    if (content)
        content->FillWith(line);
}

QString VexBaseWidget::ToString() {
    // The message belongs to the interface, with its category; qDebug() would leave it out where debug output is
    // compiled away.
    QMessageLogger(nullptr, 0, nullptr).debug() << "<kite>"
                                                << "VexBaseWidget::ToString()";
    return content ? content->ToString() : QString();
}

bool VexBaseWidget::CheckInsert() {
    return content ? content->CheckInsert() : true;
}

bool VexBaseWidget::CheckReplace() {
    return content ? content->CheckReplace() : CheckInsert();
}

} // namespace kite
