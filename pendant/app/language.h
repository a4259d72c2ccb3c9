#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace pendant {

/// The language that the pendant speaks: its own texts and those of Qt.
class Language {
public:
    Language();
    ~Language();

    /// The codes to choose from: "en", "de", "zh_CN".
    static QStringList codes();
    /// The name of the language in that language.
    static QString title(const QString& code);

    /// False, and nothing changes, for a code that is not known or whose texts are missing.
    bool select(const QString& code);
    const QString& code() const { return m_code; }

private:
    QString m_code;
    QTranslator m_own;
    QTranslator m_qt;
};

} // namespace pendant
