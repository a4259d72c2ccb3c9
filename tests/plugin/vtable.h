#pragma once

#include <QMetaMethod>
#include <QObject>

#include <cstddef>
#include <cstring>
#include <type_traits>

/// How the C++ ABI of Linux lays out virtual operations: a pendant calls by slot.
namespace vtable {

/// The slot of a virtual operation, from its member pointer: one more than the slot's offset in bytes on x86-64, the
/// offset itself on Arm.
template <typename Member> std::ptrdiff_t slotOf(Member member) {
    static_assert(std::is_member_function_pointer<Member>::value, "slotOf() takes a member function");
    std::ptrdiff_t number = 0;
    std::memcpy(&number, &member, sizeof number);
    const auto size = static_cast<std::ptrdiff_t>(sizeof(void*));
    return (number & ~std::ptrdiff_t(1)) / size;
}

/// What stands in the slot of a living object.
inline const void* entry(const QObject* object, std::ptrdiff_t slot) {
    const void* const* table = nullptr;
    std::memcpy(&table, static_cast<const void*>(object), sizeof table);
    return table[slot];
}

/// The last virtual operation that QObject declares.
class LastOfQObject : public QObject {
public:
    static std::ptrdiff_t slot() { return slotOf(&LastOfQObject::disconnectNotify); }
};

} // namespace vtable
