#pragma once

#include "kite/export.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

namespace kite {

/// The way to the robot: reads and changes the controller's data, sends it requests, and tells of its links.
///
/// There is one in the process, see kiteInterface(); a plugin makes none of its own. Behind it stand two links. The
/// service bus ("relay") carries data by key, commands and watches. The controller link ("rc") carries requests. Each
/// goes up and down by itself; sigNetworkConnect() tells that both are up.
///
/// Every operation works at once on the calling thread and reports failure by what it returns. What the pendant answers
/// out of the ordinary (nothing, an empty node, a value of another kind) is no failure: it comes as the JSON that is
/// left of it, Null where there is none. Operations that send on the bus and wait for an answer do so for as long as
/// the bus allows; those with a `timeoutMs` hold the thread for up to that many milliseconds, and the page stands still
/// meanwhile.
///
/// User-interface thread only.
/// \since 0.1
class KITE_EXPORT InterfaceManager : public QObject {
    Q_OBJECT

public:
    /// Listens to both links from now on. Use kiteInterface() instead.
    explicit InterfaceManager(QObject* parent);
    ~InterfaceManager() override;

    /// @name The links
    /// @{

    /// Has the pendant call `handler` when the state of the links changes. A plugin that is loaded while the links are
    /// up already never sees sigNetworkConnect() for that; with this it is called nevertheless.
    ///
    /// \param taskFlag true: call when the links come up, and at once when they are; false: call when they go down
    /// \param name     what the id is made of when `taskId` is empty
    /// \param owner    the registration ends with this object; not owned. Null for none: then you end it
    /// \param handler  called on the user-interface thread, each time. An empty one throws std::bad_function_call when
    ///                 its time comes, into the pendant; what yours throws goes there as well
    /// \param taskId   an id of your own; empty for a new one, `name` + "_" + a number that is unique in the process
    /// \return the id, for disconnectNetworkStatus()
    QString connectNetworkStatus(bool taskFlag, const QString& name, QObject* owner, std::function<void()> handler,
                                 const QString& taskId);

    /// Takes a registration back.
    /// \param taskFlag as it was passed to connectNetworkStatus(): the two kinds are kept apart
    /// \return false when there is none of that kind and id
    bool disconnectNetworkStatus(bool taskFlag, const QString& taskId);

    /// Whether the service bus is connected at this moment. It says nothing of the controller link.
    bool getRobotConnected();

    /// @}
    /// @name The service bus
    /// @{

    /// Asks the bus for the data of `key`.
    /// \return the data as JSON; Null while the bus is not connected and when it has none
    QJsonValue getRelayData(const QString& key);
    /// Asks the bus for the part `subKey` of the data of `key`.
    QJsonValue getRelayData(const QString& key, const QString& subKey);

    /// Sends a value to the bus and does not wait.
    /// \return true tells only that the bus was connected, not that the value was accepted; false: nothing was sent
    bool setRelayData(const QString& key, const QVariant& value);
    bool setRelayData(const QString& key, const QString& subKey, const QVariant& value);

    /// Sends a command to the bus and does not wait.
    /// \return true tells only that the bus was connected, not that the command was done; false: nothing was sent
    bool commandRelayData(const QString& key, const QVariant& value);

    /// Sends a command to the bus and waits for its answer.
    /// \return the answer as JSON, Null when it is empty. While the bus is not connected, nothing is sent and the
    ///         result is the Bool false, not Null
    QJsonValue execCommandRelayData(const QString& key, const QVariant& value);

    /// Subscribes to the changes of a key of the bus. kite::Subscription does this and ends it by itself.
    ///
    /// The first subscriber of a key makes the bus watch it, the last one ends that. Subscribing does not need the bus
    /// to be connected. Subscribers of a key are called in the order in which they came. They may subscribe and end
    /// subscriptions, their own too, while they are called: one that is ended is not called any more, one that is new
    /// is called from the next change on (from this one when it takes the name of one whose turn is still to come). An
    /// exception that leaves a callback goes to the pendant, which reports it; later subscribers miss that change.
    ///
    /// A subscription stays when your plugin goes: end each in time, or its callback is called in freed memory.
    ///
    /// \param pluginName the plugin's name
    /// \param serviceKey the key to follow
    /// \param callback   gets the new value: a plain one as it is, a structure as a QJsonObject or QJsonArray. An empty
    ///                   one is accepted here and throws std::bad_function_call when a change comes
    /// \param connectKey tells the plugin's subscriptions apart, whatever key they follow. One with a dot works, but
    ///                   getConnectRelayKeyList() cuts it
    /// \return false when the plugin has a subscription of that connect key, for whichever service key, and when the
    ///         pendant has no such key to follow (a log line then); nothing has changed then
    bool connectRelayData(const QString& pluginName, const QString& serviceKey,
                          std::function<void(const QVariant&)> callback, const QString& connectKey);

    /// Ends a subscription; pass the names it was made with. To end one that is not there does no harm, except that the
    /// bus is told once more that a key without subscribers is not watched.
    ///
    /// With another `serviceKey` than the subscription was made with, the callback is not called any more, but its name
    /// stays among the subscribers of the key it was made with: that key stays watched until a call with it takes the
    /// name off, and a new subscription of the same name hears of that key too, or twice if it follows it.
    /// \return true
    bool disconnectRelayData(const QString& pluginName, const QString& serviceKey, const QString& connectKey);

    /// The connect keys of the plugin's subscriptions, in ascending order.
    ///
    /// Of a connect key with dots comes only what stands before the first: "axis.1" comes back as "axis", which does
    /// not end it. A plugin name with a dot has no subscriptions by this list.
    QStringList getConnectRelayKeyList(const QString& pluginName);

    /// @}
    /// @name The data tree
    /// @{

    /// The node of `key` in the pendant's data tree, with its children, as JSON. Needs no link.
    /// \return Null when the node is empty or not there; asking makes it, as an empty one
    QJsonValue getNodeData(const QString& key);

    /// @}
    /// @name Requests to the controller
    ///
    /// None of them looks whether the link is up: with the link down, nothing is sent.
    /// @{

    /// Sends a request and does not wait for its answer.
    /// \param command   the group of the request
    /// \param item      the request within the group
    /// \param timeoutMs how long the pendant waits for an answer, in milliseconds; this call does not
    /// \return what the pendant says: true when it was sent, false with the link down
    bool rcRequest(const QString& command, const QString& item, const QJsonValue& params, int timeoutMs);

    /// Sends a request and returns its answer.
    /// \param option    true to wait for the answer, for up to `timeoutMs` milliseconds
    /// \return the answer as JSON; Null when it is empty: the link is down, the time is over, or it was not waited for
    QJsonValue rcExecRequest(const QString& command, const QString& item, const QJsonValue& params, bool option,
                             int timeoutMs);

    /// Sends a request by its full command, group and request joined by ".", with `request` as its content.
    /// \return as rcRequest()
    bool rcRequestFullCommand(const QString& command, const QJsonValue& request, int timeoutMs);

    /// Sends a request by its full command, with `request` as its content, and returns its answer.
    /// \return as rcExecRequest()
    QJsonValue rcExecRequestFullCommand(const QString& command, const QJsonValue& request, bool option, int timeoutMs);

    /// @}
    /// @name Custom data
    ///
    /// Commands to the service of plugins on the controller's side. All end in the last form, which sends an array and
    /// waits for the answer; what is sent and what comes back are two lines in the log. None of them looks whether the
    /// bus is connected: with the link down the answer is an empty array.
    ///
    /// `sender` is who sends; null for nobody. Not owned.
    /// \return the answer; an empty array when there is none or it is no array
    /// @{

    /// Sends `[{group: {key: ""}}]`.
    QJsonArray commandCustomData(QObject* sender, const QString& group, const QString& key);
    /// Sends `[{group: {key: value}}]`, with the value as a JSON string.
    QJsonArray commandCustomData(QObject* sender, const QString& group, const QString& key, const QString& value);
    /// Sends `[{group: object}]`.
    QJsonArray commandCustomData(QObject* sender, const QString& group, const QJsonObject& object);
    /// Sends `[object]`.
    QJsonArray commandCustomData(QObject* sender, const QJsonObject& object);
    /// Sends `array`.
    QJsonArray commandCustomData(QObject* sender, const QJsonArray& array);

    /// @}

signals:
    /// The service bus and the controller are both connected: the second of them has just come up, whichever it is. It
    /// may come again without a sigNetworkDisConnect() in between. A plugin that is loaded while both are up has missed
    /// it; connectNetworkStatus() is its way in.
    void sigNetworkConnect();
    /// The controller link went down. `status` is what the pendant says of it. The bus going down is not told.
    void sigNetworkDisConnect(bool status);

private:
    Q_DISABLE_COPY(InterfaceManager)
    class Q_DECL_HIDDEN InterfaceManagerPrivate;

    // Never deleted: the one instance lives until the process ends.
    InterfaceManagerPrivate* d;
};

/// The process's one InterfaceManager. Made on the first call, which may come from any thread (and has to come from the
/// user-interface thread for its signals to be heard there); destroyed when the process exits. Never null.
/// \since 0.1
KITE_EXPORT InterfaceManager* kiteInterface();

} // namespace kite
