#include "tourbuttons.h"

#include <QRegularExpression>
#include <QVariant>

namespace pendant {

namespace {

bool speaksOfFullScreen(const QString& text) {
    static const QRegularExpression words(QStringLiteral("full[\\s_-]*screen"),
                                          QRegularExpression::CaseInsensitiveOption);
    return words.match(QString(text).remove(QLatin1Char('&'))).hasMatch();
}

} // namespace

bool isTourButton(const QAbstractButton* button) {
    const QVariant wish = button->property("tour");
    if (wish.isValid())
        return wish.toString() == QLatin1String("press");
    return speaksOfFullScreen(button->objectName()) || speaksOfFullScreen(button->text());
}

QList<QPointer<QAbstractButton>> tourButtons(const QWidget* page) {
    QList<QPointer<QAbstractButton>> buttons;
    for (QAbstractButton* button : page->findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled() && isTourButton(button))
            buttons.append(button);
    }
    return buttons;
}

} // namespace pendant
