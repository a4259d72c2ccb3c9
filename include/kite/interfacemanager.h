#pragma once

#include "kite/export.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

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

    /// Has the pendant call `handler` when both links have come up, or when that has ended. A plugin that is loaded
    /// while the links are up already never sees sigNetworkConnect() for that; with this it is called nevertheless.
    ///
    /// \param taskFlag true: call when the second of the two links has come up, and at once when both are; false: call
    ///                 when the first of them goes down, not again for the other one and not at once
    /// \param name     what the id is made of when `taskId` is empty
    /// \param owner    the registration ends with this object; not owned. Null for none: then you end it
    /// \param handler  called on the user-interface thread, each time the same object. An empty one throws
    ///                 std::bad_function_call then, into the pendant, which reports it, as it does what yours throws
    /// \param taskId   an id of your own, which replaces a registration of that id and kind, whoever made it; empty for
    ///                 a new one, `name` + "_" + a number that is unique in the process
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
    /// \param callback   gets the new value: a plain one as it is, a structure as a QJsonObject or QJsonArray. It is a
    ///                   copy that is called, a new one for each change: what it counts in itself (a mutable lambda)
    ///                   is forgotten. An empty one is accepted and throws std::bad_function_call when a change comes
    /// \param connectKey tells the plugin's subscriptions apart, whatever key they follow. One with a dot works, but
    ///                   getConnectRelayKeyList() cuts it
    /// \return false when the plugin has a subscription of that connect key, for whichever service key, or the pendant
    ///         refuses (a log line then): nothing has changed. **True for a key that nobody knows**: no change comes
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
    /// not end it. Those of a plugin name with a dot are in another's list: "page" of "weld.left" as "left" of "weld".
    QStringList getConnectRelayKeyList(const QString& pluginName);

    /// @}
    /// @name The data tree
    /// @{

    /// The node of `key` in the pendant's data tree, with its children, as JSON. Needs no link.
    /// \return Null when the node is empty or not there, `[]` for an empty list. Asking makes it, save a list's item
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
    /// @name Variables of the robot project
    ///
    /// The variables of the project that is open on the pendant, in its data tree below "orca.project.var._list". Names
    /// are compared exactly and need not be unique. What is added or set is announced in the tree at once, so it shows
    /// on the pendant's pages. Needs no link, save for deleting.
    /// @{

    /// Adds a variable at the end of the list. It does not look whether the name is taken: a second variable of the
    /// same name stands beside the first. Ask getVarDataList() before.
    /// \param value its value at first; its type is the type of the variable: "int", "double", "bool", "QString", ...
    /// \param pers  true for a variable that keeps its value when the controller restarts
    /// \return true
    bool addVarData(const QString& name, QVariant value, bool pers);

    /// Sets the value of every variable of that name. The type stays what it was when the variable was added. A value
    /// with parts, such as a list that the project was loaded with, keeps its parts: readers see those and not `value`.
    /// \return true, also when there is none
    bool updateVarData(const QString& name, QVariant value);

    /// The point of that name as JSON: a point, not a variable. It searches the taught points, like
    /// getPointObjDataByName(). For a variable, take getNodeData() of "orca.project.var._list" and look for its "name".
    /// The two differ in three things. A name that is no plain text: here it is what it reads as ("5", "true"), there
    /// the empty name. A "_list" that is no list: its parts are points here, not there. A list that was written as one
    /// value, a JSON array without nodes: it is searched there, not here.
    /// \return an empty object when there is no point of that name
    QJsonObject getVarObjDataByName(const QString& name);

    /// The names of the variables of that type, in the order of the list; a name that is there twice comes twice.
    /// \param type as addVarData() makes it, with its case; empty for all
    QStringList getVarDataList(const QString& type);

    /// Deletes variables, on the controller first. Waits for its answer as long as the bus allows.
    ///
    /// For each name that is found, the controller is told to remove all of `names`. When it has confirmed, the pendant
    /// reads its project again, and the variables are gone from the list a moment later, not yet when this returns.
    ///
    /// Variables of the types "socketserver", "socketconn" and "serials" are meant to be spared. That type is looked up
    /// beneath the variable's name ("name.type") and not in its record, so do not rely on it: they are sent like others
    /// when it is missing there, and always when they are named beside a variable that may go. Leave them out of
    /// `names` yourself.
    ///
    /// \return false when the controller refuses one: nothing is deleted then. True otherwise, also when there was
    ///         nothing to delete, and when no answer came because the bus is down or slow: ask getRobotConnected()
    ///         before, and look at getVarDataList() a moment later
    bool delVarData(const QList<QString>& names);
    /// Deletes one variable.
    bool delVarData(const QString& name);

    /// @}
    /// @name Persistent variables of the controller
    ///
    /// Variables that the controller keeps, reached over the service bus by their names. They work with a pendant whose
    /// version ("helm.r.version" in the data tree) begins with 2.3, 3.0 or 3.1. None looks whether the bus is
    /// connected: with the link down, nothing is sent and the answers are empty.
    /// @{

    /// Registers which persistent variables the controller is to list, in place of those that were registered.
    /// \return 0 when it was handed to the bus, which tells nothing of its success; -240 when the pendant's version has
    ///         no persistent variables: nothing is sent then
    int registPERSVars(const QVector<QString>& names);

    /// The registered variables as the controller lists them, in its order: a QVariantMap each. Waits for the answer as
    /// long as the bus allows.
    /// \return empty when none is registered, with another pendant version, and when no answer comes
    QVector<QVariant> getRegistedPERSVars();

    /// Reads the values of variables. Waits for the answer as long as the bus allows.
    /// \return as many texts as `names`, in their order. Those that the controller did not answer are empty: with the
    ///         link down, or with another pendant version, all are. An empty text may just as well be the value
    QVector<QString> getValuesOfPERSVars(const QVector<QString>& names);

    /// Sets variables. Does not wait, and does not tell whether the controller took the values: read them again. A name
    /// with a dot, an empty one and one such as "#3" cannot be set by this: they are read as paths and items of lists.
    /// \param values as many as `names`, in their order
    /// \return 0 when it was handed to the bus. Nothing is sent with -1: the two differ in length; and with -240: the
    ///         pendant's version has no persistent variables
    int setValuesOfPERSVars(const QVector<QString>& names, const QVector<QVariant>& values);

    /// @}
    /// @name Points
    ///
    /// The taught points of the project that is open on the pendant, in its data tree below "orca.project.point._list".
    /// Numbers stand there as the controller delivers them, units and all; the virtual one delivers mm and degrees: the
    /// pose of the tool in the work object, a about Z, b about the new Y, c about the newest X.
    ///
    /// Mind the case of names: getPointDataByName() and the JSON look-ups compare exactly; addCurrentPoint() and
    /// changeCartPoint() ignore case.
    /// @{

    /// Teaches a point: asks the controller where the robot is and appends that to the list. Points of that name in
    /// whatever case are removed first, so this replaces. Holds the thread for up to 1600 ms.
    ///
    /// The answer is not examined. When the controller does not answer in time, or refuses because it does not know the
    /// tool or the work object, the old point is gone, the new one holds zeros, and the result is true. For a position
    /// that matters, read it back (getPointObjDataByName()) and teach again when all joints, or the quaternion q1 to
    /// q4, are 0: no pose has such a quaternion.
    ///
    /// \param isJoint true: the joints; false: the pose in the work object, with configuration
    /// \param tool    the tool's name; \param wobj the work object's name
    /// \return false when the controller link is down (or the pendant has no list of points): nothing is changed then.
    ///         Also false when somebody deletes the list as the old points go. True, with nothing stored, when it is
    ///         deleted while the controller answers, and when it refuses the point
    bool addCurrentPoint(const QString& name, bool isJoint, const QString& tool, const QString& wobj);

    /// The pose of the first point of exactly that name: x, y, z, a, b, c.
    /// \return empty when there is no such point; six zeros when it is a joint point, unless the project's template
    ///         gives points a pose to begin with
    QVector<double> getPointDataByName(const QString& name);

    /// The first point of exactly that name as JSON; its position is under "value", "[0][0][0]".
    /// \return an empty object when there is no such point
    QJsonObject getPointObjDataByName(const QString& name);

    /// The names of all points, in the order of the list; a name that is there twice comes twice.
    QStringList getPointNameList();

    /// Whether two names are equal, with their case. It does not look at the points: to compare positions, compare what
    /// getPointDataByName() returns.
    bool checkPointSame(const QString& first, const QString& second);

    /// Changes position and Euler angles of the first point of that name in whatever case, and leaves all else of it:
    /// also the quaternion and the configuration, which then no longer fit the angles. A joint point has no pose and
    /// keeps what it has, but the change is announced all the same.
    ///
    /// The pendant is told of the change by an announcement that names the last point of the list, whichever was
    /// changed. If you follow "orca.project.point.hot_update", read the whole list anew.
    ///
    /// \param pose x, y, z in mm, a, b, c in degrees. With fewer than six values, or when there is no such point,
    ///             nothing happens
    void changeCartPoint(const QString& name, const QVector<double>& pose);

    /// @}
    /// @name The state of the robot
    ///
    /// Each reads one value as the pendant has it at this moment. None asks the controller, and none looks whether a
    /// link is up: with the links down they give what was there last.
    /// @{

    /// The robot's identifier; empty when there is none.
    QString getRobotID();
    /// Whether the drives have power: whether the pendant's word for it is exactly "on", in lower case.
    bool getRobotEleStatus();
    /// What the robot does, in the pendant's own word; empty when there is none.
    QString getRobotPhyStatus();
    /// The operating level of the user who is logged in, the pendant's own number; 0 when there is none.
    int getUserOperateLevel();
    /// The controller's address as it is set on the pendant; empty when it is not set.
    QString getRobotIP();
    /// The robot's type as it is set on the pendant; empty when it is not set.
    QString getRobotType();
    /// The number of the robot's model in the last answer to the request "system.controller.get_params". It does not
    /// ask: rcExecRequest() does.
    /// \return 0 before there was an answer
    int getRobotModelType();
    /// The tool that is selected on the pendant; "tool0" when none is.
    QString getCurTool();
    /// The work object that is selected on the pendant; "wobj0" when none is.
    QString getCurWobj();

    /// @}
    /// @name What there is to refer to
    ///
    /// Names for motion instructions, signals and registers, read from the pendant's data tree at each call. Needs no
    /// link. What is not there is an empty list or hash.
    /// @{

    /// The names of the tools: those of the system, of the project and the global ones, in this order. A name that is
    /// there twice comes twice.
    QStringList getToolList();
    /// The names of the work objects, as getToolList().
    QStringList getWobjList();
    /// The names of the variables whose type is exactly "speed": those of the system, then those of the project.
    QStringList getSpeedList();
    /// The names of the variables whose type is exactly "zone", as getSpeedList().
    QStringList getZoneList();

    /// The present values of all IO signals by their names, as the pendant keeps them.
    QHash<QString, QVariant> getIOHash();
    /// The names of the IO signals of a type, in the pendant's order.
    /// \param signalType 1 digital input, 2 digital output, 3 group input, 4 group output, 5 analogue input,
    ///                   6 analogue output. Any other gives an empty list and an error line in the log
    QStringList getIOByType(int signalType);
    /// The same by "DI", "DO", "GI", "GO", "AI" or "AO", in upper case.
    QStringList getIOByType(const QString& signalType);

    /// The values of the registers by their names. One without a name or a value is left out; of two with one name the
    /// later counts.
    QHash<QString, QStringList> getRegisterHash();
    /// The registers as JSON: an array of objects with "name" and "value", also when it has become empty.
    /// \return Null as long as the pendant has never had registers
    QJsonValue getRegisterValue();

    /// @}
    /// @name Moves to points
    ///
    /// \warning These move a robot. Mind what is said of each form.
    ///
    /// The move goes on in the controller when the call returns, and `result` tells nothing of how it goes: subscribe
    /// to the bus key "move.last_error_with_setting" with a kite::Subscription before you start. With the bus down
    /// nothing is sent, and `result` is the same: ask getRobotConnected() before.
    ///
    /// A start resets first and waits for the answer to that, as long as the bus allows. Then it has the bus watch that
    /// key for the manager, until moveToStop(): one mark for all plugins, so two starts need one stop. The mark is set
    /// with the bus down too, and goes out when the bus comes up. Subscriptions have marks of their own, which
    /// moveToStop() leaves alone. What is sent stands in the log as an error line, though it is none.
    /// @{

    /// Starts a move **without a target**: a speed is sent and no pose, so the controller has nowhere to go. To move a
    /// robot call the other form, with `withConf`. Mind that four arguments are this one and five the other.
    /// \param result    -1 when there is no point of exactly that name: nothing is sent then, and the log says so.
    ///                  Otherwise it is **left as it was**: set it before
    /// \param pointName a point of the project that is open
    /// \param speed     as with the other form
    /// \param joint     true: a joint move; false: a linear one
    void moveToStart(int& result, const QString& pointName, int speed, bool joint);

    /// Starts a move to a point. Its pose is sent, all of it divided by 1000: x, **x once more in the place of y**, and
    /// z in mm become metres; a, b, c in degrees become thousands of degrees. So the robot goes to points with x = y,
    /// and for all others to another place than the one that was taught. The tool and the work object are not sent.
    ///
    /// **Zeros are a target too**, the origin of the work object: that is what a point holds that was taught while the
    /// controller did not answer. Of a point without a pose no target is sent. A joint point has none, unless the
    /// project's template gives points one to begin with; then that is sent, whatever the joints are. So look at
    /// "property" (getPointObjDataByName()), which is "cart", and at the pose before.
    ///
    /// \param result    as with the other form
    /// \param pointName as with the other form
    /// \param speed     in mm/s for a linear move; for a joint move what the controller makes of it: the virtual one
    ///                  takes thousandths of the full speed of the axes, up to 1000. It is sent divided by 1000 and not
    ///                  looked at: 0 and less go out too
    /// \param withConf  true: the configuration of the point is sent too, eight numbers, 0 for what the point has not,
    ///                  also when there is no pose
    /// \param joint     as with the other form
    void moveToStart(int& result, const QString& pointName, int speed, bool withConf, bool joint);

    /// Stops the move, whoever has started it, and takes back the manager's watch. Does not wait. With the bus down
    /// nothing is sent, and **the robot goes on**.
    void moveToStop();

    /// Asks the controller whether the way from one point to the other can be gone. Waits for the answer as long as the
    /// bus allows. It is the controller that looks for the points.
    /// \return 1 when the names are equal: it is not asked then. -2 when it answers with an error other than -50003. 0
    ///         when the way can be gone, **and when no answer came** because the bus is down or slow
    int checkPointMoveTo(const QString& fromPoint, const QString& toPoint);

    /// @}
    /// @name Projects
    ///
    /// A project is the folder WORKSPACE/ROBOT/NAME, with ROBOT the robot's identifier, or "LOCALHOST" without one.
    ///
    /// \warning Names are used in paths as they are: "a/b" is a folder in a folder, ".." is the workspace itself, and
    /// removeProject() deletes it. Pass names that getProjectList() has, and check what somebody typed. Where no
    /// workspace is set, the path begins at the root of the disk.
    ///
    /// The empty name and "_temp" are refused, with an error line in the log. None looks whether a link is up.
    /// @{

    /// The names of the projects as the service bus lists them. Waits for the answer as long as the bus allows.
    /// \return empty when there are none, and when no answer comes
    QStringList getProjectList();

    /// Makes the folder of a project with a description file, projectinfo.json, and nothing else.
    /// \param description goes into the file, with the time of creation
    /// \param setCurrent  has the pendant change to the project. The selected tool becomes "toole", save when
    ///                    "orca.toolpage,tool" (with a comma) holds the name of a global one, and the selected work
    ///                    object "wobjo", save when it is a global one: **none is called so**. Select others afterwards
    /// \return 0, also when the file could not be written; -1: the name is refused; -2: there is such a folder; -3: the
    ///         folder could not be made, though folders that lead to it may have been ("a" of "a/b"). Unless it is 0,
    ///         the pendant has not changed to it
    int createProject(const QString& name, const QString& description, bool setCurrent);

    /// Deletes the folder of a project with all that is in it, for good. Waits for the bus.
    ///
    /// **The project that is loaded at the start stays the one to load**, though it is gone:
    /// "orca.project.autoload_prj_path" goes on naming it. A reset is prepared under one command's name and sent under
    /// another's, without content, which the virtual controller takes and which changes nothing; that is waited for up
    /// to 1600 ms. See that another project is the one to load before.
    ///
    /// The selected tool becomes "tool0", save a global one; the selected work object becomes "wobj0", **a global one
    /// too**. A project that is open stays open: change to another one before. The error line "Remove folder %l
    /// failed!" in the log is **what success looks like**, save for the project that is loaded at the start.
    /// \return 0, **also when the folder could not be deleted**, or only in part, or was not there; all else was done
    ///         then. See whether getProjectList() still has the name; an empty list is no proof, for it is also what
    ///         comes without an answer. -1: the name is refused
    int removeProject(const QString& name);

    /// Has the pendant change to a project. It does not look whether there is one of that name.
    /// \return 0; -1: the name is refused
    int changeProject(const QString& name);

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
