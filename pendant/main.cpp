#include "app/application.h"
#include "app/options.h"
#include "app/run.h"
#include "app/workfolder.h"
#include "logs/consolecolours.h"

#include <cstdio>
#include <cstdlib>

namespace {

bool hasScreen() {
    return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY") || std::getenv("QT_QPA_PLATFORM");
}

bool needsScreen(const pendant::Options& options) {
    return options.tourFolder.isEmpty() && options.help.isEmpty() && options.error.isEmpty();
}

int fail(const QString& text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    pendant::keepColoursOnTerminals();
    const bool screen = hasScreen();
    // The tour makes its pictures off the screen where there is none, and help needs none.
    if (!screen)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    pendant::Application application(argc, argv);
    const pendant::Options options = pendant::OptionReader::read(application.arguments());
    if (!options.help.isEmpty()) {
        std::printf("%s", qPrintable(options.help));
        return 0;
    }
    if (!options.error.isEmpty())
        return fail(options.error);
    if (!screen && needsScreen(options))
        return fail(QCoreApplication::translate(
            "pendant::OptionReader",
            "There is no display. Start the pendant under one, or let it play its tour with --tour."));
    const QString error = pendant::enterWorkFolder(options.workFolder);
    if (!error.isEmpty())
        return fail(error);
    return pendant::run(application, options);
}
