#include "brisk/moduleobject.h"

#include "childlist.h"
#include "treewalk.h"

#include <QJsonValue>

namespace brisk {

namespace {

template <typename T> T read(QVariant value, const T& fallback) {
    if (value.userType() == QMetaType::QJsonValue)
        value = value.toJsonValue().toVariant();
    const bool holdsNothing = !value.isValid() || value.userType() == QMetaType::Nullptr;
    return !holdsNothing && value.convert(qMetaTypeId<T>()) ? value.value<T>() : fallback;
}

} // namespace

QString ModuleObject::getString(const QString& fallback) const {
    return read(value(), fallback);
}

int ModuleObject::getInt(int fallback) const {
    return read(value(), fallback);
}

double ModuleObject::getDouble(double fallback) const {
    return read(value(), fallback);
}

bool ModuleObject::getBool(bool fallback) const {
    return read(value(), fallback);
}

QVariant ModuleObject::value(const QVariant& fallback) const {
    return m_value.isValid() ? m_value : fallback;
}

void ModuleObject::setValue(QObject* sender, const QVariant& value, bool notify) {
    QVariant previous = value;
    previous.swap(m_value);
    if (notify)
        announceChanged(previous, sender);
}

void ModuleObject::set(QObject* sender, const QString& key, const QVariant& value, bool notify) {
    const TreeWalk::Making making{sender, TreeWalk::Items::NextAsLastPart, notify};
    if (ModuleObject* node = TreeWalk::findOrMake(this, key, making))
        node->setValue(sender, value, notify);
}

void ModuleObject::trigger() {
    const QVariant present = value();
    if (hears(HearsChanged))
        emit changed(present, present, nullptr);
}

} // namespace brisk
