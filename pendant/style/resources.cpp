#include "resources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE declares a function, which must not end up in a namespace.
static void initialiseResources() {
    Q_INIT_RESOURCE(pendant);
    Q_INIT_RESOURCE(translations);
}

namespace pendant {

void initResources() {
    initialiseResources();
}

} // namespace pendant
