#pragma once

#include "kite/export.h"
#include "kite/logvalue.h"

#include <QDebug>
#include <QFile>
#include <QString>
#include <QVariant>

/// \file
/// Streams that write one line each. An object is one line: it is begun by the constructor, extended by `<<`, and
/// finished by the destructor, so make a temporary and let the statement end it. <kite/logline.h> has the lines of the
/// three levels ready, and most plugins need nothing else:
///
///     kite::ErrorLine("<weld>") << "No wire for " << seconds << " s";
///
/// What `<<` takes, by all three classes alike:
///
/// | what                                                       | prints as                                      |
/// |------------------------------------------------------------|------------------------------------------------|
/// | QString, "text", char*, QByteArray (both UTF-8)            | itself, unquoted; a null pointer as nothing    |
/// | QLatin1String, QChar, char                                 | itself                                         |
/// | integers, bool, floating point, enumerators, QVariant      | QVariant::toString() of it; enumerators as numbers |
/// | any other pointer to an object, nullptr                    | the address, "0x" and lower-case digits        |
/// | functions (Qt::endl too), pointers to members              | does not compile, and says what to write       |
///
/// From a NUL character on, a text is dropped. A QVariant that has no toString() prints nothing: lists and maps, save
/// for a QStringList of one text, which prints that text.
///
/// Any thread may write; an object belongs to the thread that made it. Nothing is ever reported: what cannot be written
/// is lost, and the next line is tried again.
/// \since 0.1

namespace kite {
namespace detail {

/// A QFile on a descriptor that appends. Called sequential, it leaves out the seeks, which such a descriptor makes
/// superfluous and a pipe refuses. Without fields of its own, so it lies in memory as a QFile does.
class __attribute__((visibility("hidden"))) AppendedFile final : public QFile {
public:
    bool isSequential() const override { return true; }
};

} // namespace detail

/// A line on the console: it is handed to the process's message handler as one debug message of the category "default"
/// when the object is destroyed.
/// \since 0.1
class KITE_EXPORT QLog {
public:
    /// \param colour the terminal's code, which stands first; the code that resets it ends the line
    /// \param tag    level and time, "[E|03/14 09:26:53.058]"
    /// \param module who says it, "<weld>"; empty for nobody
    QLog(const QString& colour, const QString& tag, const QString& module);
    ~QLog();

    QLog& operator<<(const QString& text);
    QLog& operator<<(const QVariant& value);
    QLog& operator<<(const void* pointer);
    template <typename T> detail::IfLogged<T, QLog&> operator<<(T value) { return *this << detail::toLogged(value); }

    /// Puts a blank after each item from now on.
    QLog& space();

private:
    Q_DISABLE_COPY(QLog)

    QDebug stream;
};

/// A line in a log file. Which one, says PluginLogFileManager. The file is opened by the constructor; a folder that is
/// missing is made. When it does not open, the line is dropped; so it is when the path holds a NUL character.
///
/// A line of up to 16,384 characters (UTF-16 units), tag and module included, is written in one piece with its line
/// break, so lines of several threads and processes stay whole. A longer one is written in pieces, between which others
/// may write. What is not ASCII is encoded as the process's locale says.
/// \since 0.1
class KITE_EXPORT FLog {
public:
    /// \param tag    level and time, "[E|03/14 09:26:53.058]"
    /// \param module who says it, "<weld>"; empty for nobody
    /// \param path   the log's path without extension, "./log/kite"
    /// \param ext    the extension without the dot, "log"
    FLog(const QString& tag, const QString& module, const QString& path, const QString& ext);
    ~FLog();

    FLog& operator<<(const QString& text);
    FLog& operator<<(const QVariant& value);
    FLog& operator<<(const void* pointer);
    template <typename T> detail::IfLogged<T, FLog&> operator<<(T value) { return *this << detail::toLogged(value); }

    /// Puts a blank after each item from now on.
    FLog& space();

private:
    Q_DISABLE_COPY(FLog)

    detail::AppendedFile file;
    QDebug stream;
    QString fileName;
};

/// The same line on the console and in a log file, there without the colour. The file's line is finished first.
/// \since 0.1
class KITE_EXPORT QFLog {
public:
    /// The arguments are those of QLog and FLog.
    QFLog(const QString& colour, const QString& tag, const QString& module, const QString& path, const QString& ext);

    QFLog& operator<<(const QString& text);
    QFLog& operator<<(const QVariant& value);
    QFLog& operator<<(const void* pointer);
    template <typename T> detail::IfLogged<T, QFLog&> operator<<(T value) { return *this << detail::toLogged(value); }

    /// Puts a blank after each item from now on.
    QFLog& space();

private:
    Q_DISABLE_COPY(QFLog)

    QLog console;
    FLog file;
};

} // namespace kite
