#pragma once

#include "style/theme.h"

#include <QFrame>
#include <QString>

namespace pendant {

/// One plugin on the start page: how it stands, where it comes from and, if it failed, why.
class PluginCard : public QFrame {
    Q_OBJECT

public:
    struct Content {
        QString title;
        QString file;   ///< path
        QString word;   ///< how it stands, in one word
        QString icon;   ///< line icon
        QString token;  ///< colour of icon and word
        QString reason; ///< why it failed; empty when it did not
        QString page;   ///< key of its page; empty when it has none
        QString openWord;
    };

    PluginCard(const Content& content, const Theme& theme, QWidget* parent = nullptr);

signals:
    void openPressed();
};

} // namespace pendant
