#include "wirechange.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

WireChange::WireChange(QWidget* parent) : QDialog(parent) {
    setWindowTitle(tr("Change the wire"));
    setModal(true);
    setAttribute(Qt::WA_DeleteOnClose);

    auto* title = new QLabel(tr("Change the wire"));
    title->setObjectName(QStringLiteral("pageTitle"));
    auto* done = new QPushButton(tr("Wire changed"));
    done->setEnabled(false);
    auto* cancel = new QPushButton(tr("Cancel"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(8);
    layout->addWidget(title);
    const QStringList steps{tr("The torch is in the service position."), tr("The old spool has been taken out."),
                            tr("The new wire shows at the contact tip.")};
    QList<QCheckBox*> boxes;
    for (const QString& step : steps) {
        boxes.append(new QCheckBox(step));
        layout->addWidget(boxes.last());
    }
    for (QCheckBox* box : boxes) {
        connect(box, &QCheckBox::toggled, done, [boxes, done] {
            bool all = true;
            for (const QCheckBox* each : boxes)
                all = all && each->isChecked();
            done->setEnabled(all);
        });
    }
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(done);
    layout->addLayout(buttons);

    connect(done, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}
