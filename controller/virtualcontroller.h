#pragma once

#include "controller/bustable.h"
#include "controller/changingvalues.h"
#include "controller/clock.h"
#include "controller/content.h"
#include "controller/hostinfo.h"
#include "controller/plugincommands.h"
#include "controller/recenttexts.h"
#include "controller/requesttable.h"

#include <QObject>
#include <QString>

#include <memory>

namespace controller {

class MotionData;
class PathCheck;
class PersistentVariables;
class Project;
class Registers;
class Robot;
class SignalTable;

/// A controller with a robot and a project: it answers what comes over the bus and the controller link from its tables.
/// What they do not hold it does not know. Of its own are the keys "controller.uptime", which counts the seconds of
/// its clock, and those of the robot, the project, the persistent variables, the signals and the registers.
///
/// It lives on one thread, the user-interface thread of the pendant.
class VirtualController : public QObject {
    Q_OBJECT

public:
    explicit VirtualController(QObject* parent = nullptr);
    ~VirtualController() override;

    Clock* clock() { return &m_clock; }
    BusTable* bus() { return &m_bus; }
    ChangingValues* changing() { return &m_changing; }
    RequestTable* requests() { return &m_requests; }
    PluginCommands* pluginCommands() { return &m_pluginCommands; }
    Robot* robot();
    PathCheck* pathCheck();
    Project* project();
    PersistentVariables* persistentVariables();
    SignalTable* ioSignals();
    Registers* registers();
    MotionData* motionData();

    /// What the pendant is told of itself, under the key "host.info".
    const HostInfo& host() const { return m_host; }
    void setHost(const HostInfo& host);

    /// Keeps the values of persistent variables in the file at `path`, which brings back those that it holds. To be
    /// called when the cell is loaded.
    /// \param error says what is wrong, a sentence; untouched when all is well
    /// \return false when the file is there and is no good; it is left alone then, and nothing is kept
    bool keepValuesIn(const QString& path, QString* error);

    /// Carries `message` out and gives the answer, also when the message wants none. `asker` is who watches when the
    /// message is a watch; null is an asker like any other.
    Content handle(const Message& message, const QObject* asker = nullptr);
    /// Whose message is being handled, the innermost one; null also when there is none.
    const QObject* asker() const { return m_asker; }

    /// To be asked when a sentence of noticed() is handed out: a plugin may ask ten times a second, and the people at
    /// the pendant are told once. Of the sentences handed out the last RecentTexts::capacity are remembered.
    /// \return false when it was handed out before
    bool handOutOnce(const QString& sentence) { return m_handedOut.add(sentence); }
    bool wasHandedOut(const QString& sentence) const { return m_handedOut.contains(sentence); }

signals:
    /// A watched bus key was written.
    void delivered(const QString& key, const brisk::standin::Content& content);
    /// A message was refused, that of asker() if there is one; a sentence for the people at the pendant.
    void noticed(const QString& text);
    /// Something has come about that is no answer to a message; a sentence for the people at the pendant.
    void remarked(const QString& text);

private:
    struct Machine;
    class Asking;

    Content handleExecute(const Message& message);

    Clock m_clock;
    BusTable m_bus;
    ChangingValues m_changing{&m_clock, &m_bus};
    RequestTable m_requests;
    PluginCommands m_pluginCommands;
    HostInfo m_host;
    std::unique_ptr<Machine> m_machine;
    const QObject* m_asker = nullptr;
    RecentTexts m_handedOut;
};

} // namespace controller
