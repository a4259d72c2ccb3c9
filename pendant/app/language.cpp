#include "language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace pendant {

Language::Language() : m_code(QStringLiteral("en")) {}

Language::~Language() {
    QCoreApplication::removeTranslator(&m_own);
    QCoreApplication::removeTranslator(&m_qt);
}

QStringList Language::codes() {
    return {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("zh_CN")};
}

QString Language::title(const QString& code) {
    if (code == QLatin1String("de"))
        return QStringLiteral("Deutsch");
    if (code == QLatin1String("zh_CN"))
        return QString::fromUtf8("简体中文");
    return QStringLiteral("English");
}

bool Language::select(const QString& code) {
    if (!codes().contains(code))
        return false;
    const bool isSource = code == QLatin1String("en");
    QCoreApplication::removeTranslator(&m_own);
    QCoreApplication::removeTranslator(&m_qt);
    if (!isSource && !m_own.load(QStringLiteral(":/pendant/translations/pendant_%1.qm").arg(code)))
        return false;
    m_code = code;
    QLocale::setDefault(QLocale(code));
    if (isSource)
        return true;
    // Texts of Qt's own dialogs are a nicety: without them these speak English.
    if (m_qt.load(QStringLiteral("qtbase_") + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
    QCoreApplication::installTranslator(&m_own);
    return true;
}

} // namespace pendant
