#include "app/application.h"
#include "app/options.h"
#include "app/run.h"
#include "app/workfolder.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// A tour needs no screen: it makes its pictures off the screen where there is none.
void chooseScreen(int argc, char** argv) {
    const bool hasScreen = std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY") || std::getenv("QT_QPA_PLATFORM");
    for (int i = 1; i < argc && !hasScreen; ++i) {
        if (std::strncmp(argv[i], "--tour", 6) == 0)
            qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

int fail(const QString& text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    chooseScreen(argc, argv);
    pendant::Application application(argc, argv);
    const pendant::Options options = pendant::OptionReader::read(application.arguments());
    if (!options.help.isEmpty()) {
        std::printf("%s", qPrintable(options.help));
        return 0;
    }
    if (!options.error.isEmpty())
        return fail(options.error);
    const QString error = pendant::enterWorkFolder(options.workFolder);
    if (!error.isEmpty())
        return fail(error);
    return pendant::run(application, options);
}
