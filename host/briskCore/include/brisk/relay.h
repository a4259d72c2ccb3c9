#pragma once

#include "brisk/export.h"
#include "brisk/moduleobject.h"

#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

/// The face of the service bus. One per process, see ::relay().
///
/// Reply nodes belong to the bus, one per command, and are used again by the next call of that command. With the link
/// down a reply is an empty node. User-interface thread only.
class BRISK_EXPORT Relay : public QObject {
    Q_OBJECT

public:
    explicit Relay(QObject* parent = nullptr);
    ~Relay() override;

    /// The bus's own data node; its child "connected" (bool) is there from construction.
    brisk::ModuleObject* mobj() const;

    brisk::ModuleObject* get(QObject* sender, const QString& key);
    brisk::ModuleObject* get(QObject* sender, const QString& key, const QString& subKey);

    void set(QObject* sender, const QString& key, const QString& subKey, const QVariant& value);
    void set(QObject* sender, const QString& key, brisk::ModuleObject* node);

    void command(QObject* sender, const QString& key);
    void command(QObject* sender, const QString& key, const QVariant& value);
    void command(QObject* sender, const QString& key, brisk::ModuleObject* node);

    brisk::ModuleObject* execCommand(QObject* sender, const QString& key);
    brisk::ModuleObject* execCommand(QObject* sender, const QString& key, const QVariant& value);
    brisk::ModuleObject* execCommand(QObject* sender, const QString& key, brisk::ModuleObject* node);

    /// Sends `value` to `endpoint` as the plugin command `name`; the reply's child "data" holds the answer.
    brisk::ModuleObject* execPluginCommand(QObject* sender, const QString& name, const QString& endpoint,
                                           const QVariant& value);

    /// Switches watching of `key` on or off for `sender`; null is a sender like any other.
    void watch(QObject* sender, const QString& key, bool on);
    /// The node on which deliveries of `key` are announced by `changed`; one node per key for life.
    brisk::ModuleObject* watchNode(const QString& key);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// The process's service bus; made on first use.
BRISK_EXPORT Relay* relay();
