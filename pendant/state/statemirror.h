#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace brisk {
class ModuleObject;
}

namespace pendant {

/// Keeps what the controller tells of itself in the data tree: signals, registers, the names that a motion can refer
/// to, who the robot is, how it is and where.
///
/// All of it is read when the bus comes up, and asked for again until it came: statelink tells how far that is. After
/// that what changes is written, and nothing else. With the bus down the last values stay. The tree is not listened to:
/// what somebody writes there stays in the tree.
///
/// When the controller link comes up it asks for the controller's parameters, as a host does.
class StateMirror : public QObject {
    Q_OBJECT

public:
    explicit StateMirror(QObject* parent = nullptr);
    ~StateMirror() override;

private:
    void follow(const QString& key);
    void followBus();
    void read();
    void readAgain();
    void take(const QString& key, const brisk::ModuleObject* value);
    void askForParameters();

    bool m_wasUp = false;
    QTimer m_again;
};

} // namespace pendant
