#pragma once

#include <QtGlobal>

namespace pendant {

/// A place in a log of several files. Places stay what they are when a file grows, when files come after the last and
/// when the first ones go.
struct LogPlace {
    int file = -1;     ///< number of the file, counted from the first that was ever there; -1 is no place
    qint64 offset = 0; ///< bytes from its beginning

    bool isValid() const { return file >= 0; }
};

inline bool operator==(const LogPlace& left, const LogPlace& right) {
    return left.file == right.file && left.offset == right.offset;
}
inline bool operator!=(const LogPlace& left, const LogPlace& right) {
    return !(left == right);
}
inline bool operator<(const LogPlace& left, const LogPlace& right) {
    return left.file != right.file ? left.file < right.file : left.offset < right.offset;
}

} // namespace pendant
