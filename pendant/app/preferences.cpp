#include "preferences.h"

#include <QSettings>

#include <memory>

namespace pendant {

namespace {

// The host reads the file too, as UTF-8: the workspace may have any letters in its path.
std::unique_ptr<QSettings> opened() {
    auto file = std::make_unique<QSettings>(QStringLiteral("settings.ini"), QSettings::IniFormat);
    file->setIniCodec("UTF-8");
    return file;
}

QString read(const QString& key, const QString& fallback) {
    return opened()->value(key, fallback).toString();
}

void write(const QString& key, const QString& value) {
    opened()->setValue(key, value);
}

} // namespace

QString Preferences::theme() {
    return read(QStringLiteral("pendant.theme"), QStringLiteral("light"));
}
void Preferences::setTheme(const QString& name) {
    write(QStringLiteral("pendant.theme"), name);
}
QString Preferences::language() {
    return read(QStringLiteral("pendant.language"), QStringLiteral("en"));
}
void Preferences::setLanguage(const QString& code) {
    write(QStringLiteral("pendant.language"), code);
}
QByteArray Preferences::dockGeometry() {
    return QByteArray::fromBase64(read(QStringLiteral("pendant.dock"), QString()).toLatin1());
}
void Preferences::setDockGeometry(const QByteArray& geometry) {
    write(QStringLiteral("pendant.dock"), QString::fromLatin1(geometry.toBase64()));
}

} // namespace pendant
