#include "controller/content.h"

namespace controller {

Content copied(const Content& content) {
    const Content copy = brisk::standin::contentOf(content.get());
    return copy ? copy : brisk::standin::contentOf(QVariant());
}

} // namespace controller
