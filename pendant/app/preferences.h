#pragma once

#include <QByteArray>
#include <QString>

namespace pendant {

/// What the operator chose, kept in the settings file of the working folder.
class Preferences {
public:
    static QString theme();
    static void setTheme(const QString& name);
    static QString language();
    static void setLanguage(const QString& code);
    /// Where the developer dock stood; empty when it never did.
    static QByteArray dockGeometry();
    static void setDockGeometry(const QByteArray& geometry);
};

} // namespace pendant
