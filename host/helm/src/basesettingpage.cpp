#include "helm/basesettingpage.h"

#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

namespace helm {

struct BaseSettingPage::Private {
    QString name;
    QPointer<QWidget> page;
    QPointer<QWidget> title;
    QPointer<QWidget> content;
};

BaseSettingPage::BaseSettingPage(const QString& name, const QString& title, QWidget* parent, QObject* owner)
    : BModule(owner), d(new Private) {
    d->name = name;
    d->page = new QWidget(parent);
    d->page->setObjectName(QStringLiteral("settingPage"));
    d->title = new QLabel(title, d->page);
    d->title->setObjectName(QStringLiteral("pageTitle"));
    d->content = new QWidget(d->page);
    d->content->setObjectName(QStringLiteral("pageContent"));

    auto* layout = new QVBoxLayout(d->page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->title);
    layout->addWidget(d->content, 1);
    // A page appears when its container shows it, never by itself in a corner of its parent.
    d->page->hide();
}

BaseSettingPage::~BaseSettingPage() {
    delete d->page;
}

QString BaseSettingPage::name() const {
    return d->name;
}
QWidget* BaseSettingPage::wgt() {
    return d->page;
}
QWidget* BaseSettingPage::titleWgt() const {
    return d->title;
}
QWidget* BaseSettingPage::contentWgt() const {
    return d->content;
}

} // namespace helm
