#pragma once

#include "brisk/export.h"

#include <QDebug>
#include <QString>

#include <memory>

namespace brisk {

/// One line on the console, handed to the message handler when the object is destroyed:
/// colour, tag, module, the text, then the code that resets the colour.
class BRISK_EXPORT QLog {
public:
    QLog(const QString& colour, const QString& tag, const QString& module);
    ~QLog();

    /// Appends a value as the debug stream prints it, without quotes and blanks.
    template <typename T> QLog& operator<<(const T& value) {
        stream() << value;
        return *this;
    }

private:
    Q_DISABLE_COPY(QLog)
    QDebug& stream();
    struct Private;
    std::unique_ptr<Private> d;
};

/// One line in the day's file, `path` + "_yyyyMMdd." + `ext`: tag, module and the text. The file is opened, appended
/// to and closed when the object is destroyed; a folder that is missing is made. What cannot be written is dropped.
class BRISK_EXPORT FLog {
public:
    FLog(const QString& tag, const QString& module, const QString& path, const QString& ext);
    ~FLog();

    template <typename T> FLog& operator<<(const T& value) {
        stream() << value;
        return *this;
    }

private:
    Q_DISABLE_COPY(FLog)
    QDebug& stream();
    struct Private;
    std::unique_ptr<Private> d;
};

/// One line on the console and in the day's file.
class BRISK_EXPORT QFLog {
public:
    QFLog(const QString& colour, const QString& tag, const QString& module, const QString& path, const QString& ext);
    ~QFLog();

    template <typename T> QFLog& operator<<(const T& value) {
        m_console << value;
        m_file << value;
        return *this;
    }

private:
    Q_DISABLE_COPY(QFLog)
    QLog m_console;
    FLog m_file;
};

} // namespace brisk
