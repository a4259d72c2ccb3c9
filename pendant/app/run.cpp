#include "run.h"

#include "application.h"
#include "frame/keycolumn.h"
#include "helm/messagelist.h"
#include "pendantrun.h"
#include "tour/tour.h"

#include <QDir>

#include <cstdio>

using helm::standin::MessageLevel;
using helm::standin::MessageList;

namespace pendant {

namespace {

void sayWhere() {
    const QString text = Application::tr("Working folder: %1").arg(QDir::currentPath());
    MessageList::instance()->add(MessageLevel::Information, QStringLiteral("pendant"), text);
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

int walk(PendantRun& pendant, const QString& folder) {
    KeyColumn* keys = pendant.window().keys();
    Tour tour({&pendant.window(), pendant.window().center(), pendant.window().sideBar(),
               [keys](const QString& page) { return keys->showPage(page); }, &pendant.dock(), pendant.pages().program(),
               &pendant.loader(), &pendant.session(), &pendant.guard()},
              folder);
    return tour.run();
}

} // namespace

int run(Application& application, const Options& options) {
    PendantRun pendant(application, options);
    if (!pendant.error().isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(pendant.error()));
        return 2;
    }
    sayWhere();
    pendant.start();
    const int status = options.tourFolder.isEmpty() ? application.exec() : walk(pendant, options.tourFolder);
    pendant.close();
    return status;
}

} // namespace pendant
