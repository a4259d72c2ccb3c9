#include "opensharedobject.h"

#include "elf.h"
#include "pluginloader.h"
#include "thrown.h"

#include <QFile>
#include <QRegularExpression>

#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <memory>

namespace pendant {

namespace {

QString readable(const QString& symbol) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(symbol.toLatin1().constData(), nullptr, nullptr, &status), std::free);
    return status == 0 ? QString::fromUtf8(name.get()) : symbol;
}

// "/p/a.so: undefined symbol: _Z3foov" -> "undefined symbol: foo()"
QString reasonOf(QString reason, const QString& path) {
    if (reason.startsWith(path + QLatin1String(": ")))
        reason.remove(0, path.size() + 2);
    return withReadableSymbols(reason);
}

} // namespace

QString withReadableSymbols(const QString& text) {
    static const QRegularExpression symbol(QStringLiteral("\\b_Z\\w+"));
    QString result = text;
    for (auto match = symbol.match(result); match.hasMatch();) {
        const QString name = readable(match.captured());
        result.replace(match.capturedStart(), match.capturedLength(), name);
        match = symbol.match(result, match.capturedStart() + name.size());
    }
    return result;
}

QString openSharedObject(const QString& path) {
    const QString problem = sharedObjectProblem(path);
    if (!problem.isEmpty())
        return problem;
    // Not through Qt's class: what an initialiser throws passes all frames on its way, and Qt's would lose memory.
    void* handle = nullptr;
    const QByteArray name = QFile::encodeName(path);
    const QString thrown =
        thrownBy([&] { handle = ::dlopen(name.constData(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE); });
    if (!thrown.isEmpty())
        return PluginLoader::tr("threw while it was loaded: %1").arg(thrown);
    if (handle)
        return QString();
    return PluginLoader::tr("cannot be loaded: %1").arg(reasonOf(QFile::decodeName(::dlerror()), path));
}

} // namespace pendant
