#pragma once

#include <QByteArray>
#include <QChar>
#include <QLatin1String>
#include <QString>
#include <QVariant>

#include <cstddef>
#include <type_traits>

/// \file
/// How the log streams take what is neither a QString nor a QVariant nor a pointer to an object. Without it a text in
/// quotes would print as its address, since that is what a `const void*` takes, `0` would be a null pointer, and a
/// function would be the truth that there is one.

namespace kite {
namespace detail {

inline QString toLogged(const char* text) {
    return QString::fromUtf8(text);
}
inline QString toLogged(const QByteArray& text) {
    return QString::fromUtf8(text.constData());
}
inline QString toLogged(QLatin1String text) {
    return text;
}
inline QString toLogged(QChar character) {
    return character;
}
inline QString toLogged(char character) {
    return QString(QLatin1Char(character));
}
inline const void* toLogged(std::nullptr_t) {
    return nullptr;
}
inline const void* toLogged(const volatile void* pointer) {
    return const_cast<const void*>(pointer);
}
inline QVariant toLogged(bool value) {
    return value;
}
inline QVariant toLogged(float value) {
    return value;
}
inline QVariant toLogged(double value) {
    return value;
}
inline QVariant toLogged(long double value) {
    return static_cast<double>(value);
}

template <typename T>
using IfCounted =
    std::enable_if_t<(std::is_integral<T>::value && !std::is_same<T, bool>::value && !std::is_same<T, char>::value) ||
                         std::is_enum<T>::value,
                     QVariant>;

template <typename T, bool isEnum = std::is_enum<T>::value> struct Number { using Type = T; };
template <typename T> struct Number<T, true> { using Type = std::underlying_type_t<T>; };

/// An integer of any width, and an enumerator, which prints as its number.
template <typename T> IfCounted<T> toLogged(T value) {
    constexpr bool isUnsigned = std::is_unsigned<typename Number<T>::Type>::value;
    using Widest = std::conditional_t<isUnsigned, qulonglong, qlonglong>;
    return static_cast<Widest>(value);
}

template <typename T> struct IsCode {
    static constexpr bool value = std::is_function<std::remove_pointer_t<T>>::value || std::is_member_pointer<T>::value;
};

/// A function or a member's place, Qt::endl and Qt::hex among them.
template <typename T> std::enable_if_t<IsCode<T>::value, QString> toLogged(T) {
    static_assert(!IsCode<T>::value, "A log line takes values. Call the function, and write what it returns; a line "
                                     "ends by itself, without endl; a number is formatted by QString::number().");
    return QString();
}

template <typename T> struct IsVolatilePointer {
    static constexpr bool value = std::is_pointer<T>::value && std::is_volatile<std::remove_pointer_t<T>>::value;
};

template <typename T> struct IsText {
    static constexpr bool value = std::is_same<T, const char*>::value || std::is_same<T, char*>::value ||
                                  std::is_same<T, QByteArray>::value || std::is_same<T, QLatin1String>::value ||
                                  std::is_same<T, QChar>::value;
};

/// `Result` for the types that toLogged() takes, and nothing for those that a stream takes by itself.
template <typename T, typename Result>
using IfLogged =
    std::enable_if_t<std::is_arithmetic<T>::value || std::is_enum<T>::value || IsText<T>::value ||
                         std::is_same<T, std::nullptr_t>::value || IsCode<T>::value || IsVolatilePointer<T>::value,
                     Result>;

} // namespace detail
} // namespace kite
