#include "interface/movetarget.h"

#include "interface/records.h"

namespace kite {

using brisk::ModuleObject;

namespace {

const int configurationSize = 8;

double numberOf(const ModuleObject* leaf) {
    return leaf ? leaf->getDouble(0.0) : 0.0;
}

double thousandth(const ModuleObject* leaf) {
    return numberOf(leaf) / 1000.0;
}

QVariantList rotationOf(ModuleObject* euler) {
    return {thousandth(below(euler, {"a"})), thousandth(below(euler, {"b"})), thousandth(below(euler, {"c"}))};
}

// Intended: the second element is x and not y. The public header says it, and what to do about it.
QVariantList translationOf(ModuleObject* position) {
    const double x = thousandth(below(position, {"x"}));
    return {x, x, thousandth(below(position, {"z"}))};
}

bool isThere(const ModuleObject* node) {
    return node && !node->isEmpty();
}

void writeList(QObject* sender, ModuleObject* target, const char* key, const QVariantList& values) {
    if (ModuleObject* list = target->child(QLatin1String(key)))
        list->setList(sender, values, /*notify*/ true);
}

} // namespace

void writePose(QObject* sender, ModuleObject* target, ModuleObject* point) {
    ModuleObject* frame = below(point, {"value", "[0][0][0]", "pose", "frame"});
    ModuleObject* euler = below(frame, {"ori", "euler"});
    ModuleObject* position = below(frame, {"pos"});
    if (isThere(euler))
        writeList(sender, target, "rot", rotationOf(euler));
    if (isThere(position))
        writeList(sender, target, "trans", translationOf(position));
}

void writeConfiguration(QObject* sender, ModuleObject* target, ModuleObject* point) {
    ModuleObject* configuration = below(point, {"value", "[0][0][0]", "conf"});
    QVariantList values;
    for (int i = 0; i < configurationSize; ++i)
        values.append(numberOf(configuration ? configuration->c(i) : nullptr));
    writeList(sender, target, "conf", values);
}

} // namespace kite
