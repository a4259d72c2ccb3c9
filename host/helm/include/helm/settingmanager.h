#pragma once

#include "brisk/export.h"

#include <QObject>
#include <QString>

#include <memory>

namespace helm {

/// The pendant's settings, "server.ip" and "workspace" among them, from the file settings.ini in its working directory.
class BRISK_EXPORT SettingManager : public QObject {
    Q_OBJECT

public:
    explicit SettingManager(QObject* parent = nullptr);
    ~SettingManager() override;

    /// The setting as text, `fallback` when it is not set.
    QString getStr(const QString& key, const QString& fallback) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace helm
