#include "thrown.h"

#include <QCoreApplication>

#include <cstdlib>
#include <cxxabi.h>
#include <exception>
#include <memory>
#include <typeinfo>

namespace pendant {

namespace {

QString currentType() {
    const std::type_info* type = abi::__cxa_current_exception_type();
    if (!type)
        return QCoreApplication::translate("pendant::CallGuard", "something unknown");
    const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(type->name(), nullptr, nullptr, nullptr),
                                                           std::free);
    return QString::fromUtf8(name ? name.get() : type->name());
}

QString inWords(const std::exception& exception) {
    const QString what = QString::fromUtf8(exception.what());
    return what.isEmpty() ? currentType() : what;
}

} // namespace

QString thrownBy(const std::function<void()>& call) {
    try {
        call();
    } catch (const std::exception& exception) {
        return inWords(exception);
    } catch (...) {
        return QCoreApplication::translate("pendant::CallGuard", "a value of type %1, which is no std::exception")
            .arg(currentType());
    }
    return QString();
}

} // namespace pendant
