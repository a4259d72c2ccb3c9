#include "brisk/guarded.h"
#include "brisk/relay.h"
#include "helm/managerhelper.h"
#include "pendanttest/fakelink.h"

#include <QTest>

#include <memory>
#include <stdexcept>

using brisk::standin::Channel;
using brisk::standin::GuardedCall;
using helm::TaskNetworkManager;
using helm::TaskOnConnect;
using helm::TaskOnDisconnect;
using pendanttest::FakeLink;

class NetworkTasks : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aTaskRunsWhenTheSecondLinkComesUp_data();
    void aTaskRunsWhenTheSecondLinkComesUp();
    void aTaskRunsWhenTheFirstLinkGoesDown_data();
    void aTaskRunsWhenTheFirstLinkGoesDown();
    void aTaskRunsEveryTime();
    void withTheLinksUpATaskRunsAtOnce();
    void aTaskForTheEndWaitsForTheEnd();
    void bothLinksAreSeenUpByATask();
    void tasksRunInTheOrderOfTheirRegistration();
    void aTaskRunsAfterThoseItNames();
    void tasksThatNameEachOtherRunOnce();
    void aTaskThatIsTakenBackDoesNotRun();
    void aTaskTakesItselfBack();
    void aTaskThatIsRegisteredWhileTheLinkComesUpRunsOnce();
    void aTaskThatIsRegisteredAgainBeforeItsTurnRunsOnce();
    void aTaskThatPullsALinkEndsTheRound();
    void aTaskThatIsTakenOutByAnotherDoesNotRun();
    void aLinkThatIsPulledAndComesBackIsTwoChanges();
    void anIdThatIsRegisteredAgainReplacesTheFirst();
    void theTypesHaveIdsOfTheirOwn();
    void aTaskGoesWithItsOwner();
    void theFirstOwnersEndLeavesTheNewTaskAlone();
    void whatATaskThrowsIsHandedToTheHandler();

private:
    TaskNetworkManager* manager() { return helm::ManagerHelper::instance()->taskNetworkManager(); }
    void add(helm::enTaskType type, const QString& id, const QStringList& after = {}, QObject* owner = nullptr) {
        m_ids << qMakePair(type, id);
        manager()->registerTask(
            type, owner, id,
            [this, id](const TaskNetworkManager::Done& done) {
                m_ran << id;
                done(true, QVariant());
            },
            after);
    }

    std::unique_ptr<FakeLink> m_bus;
    std::unique_ptr<FakeLink> m_controller;
    QList<QPair<helm::enTaskType, QString>> m_ids;
    QStringList m_ran;
};

void NetworkTasks::init() {
    m_ran.clear();
    manager();
    m_bus.reset(new FakeLink(Channel::bus()));
    m_bus->setUp(false);
    m_controller.reset(new FakeLink(Channel::controller()));
    m_controller->setUp(false);
}

void NetworkTasks::cleanup() {
    for (const auto& id : m_ids)
        manager()->unRegisterTask(id.first, id.second);
    m_ids.clear();
    m_bus.reset();
    m_controller.reset();
}

void NetworkTasks::aTaskRunsWhenTheSecondLinkComesUp_data() {
    QTest::addColumn<bool>("busFirst");
    QTest::newRow("bus, controller") << true;
    QTest::newRow("controller, bus") << false;
}

void NetworkTasks::aTaskRunsWhenTheSecondLinkComesUp() {
    QFETCH(bool, busFirst);
    add(TaskOnConnect, "a");
    (busFirst ? m_bus : m_controller)->setUp(true);
    QCOMPARE(m_ran, QStringList());
    (busFirst ? m_controller : m_bus)->setUp(true);
    QCOMPARE(m_ran, QStringList("a"));
}

void NetworkTasks::aTaskRunsWhenTheFirstLinkGoesDown_data() {
    aTaskRunsWhenTheSecondLinkComesUp_data();
}

void NetworkTasks::aTaskRunsWhenTheFirstLinkGoesDown() {
    QFETCH(bool, busFirst);
    m_bus->setUp(true);
    m_controller->setUp(true);
    add(TaskOnDisconnect, "a");
    (busFirst ? m_bus : m_controller)->setUp(false);
    QCOMPARE(m_ran, QStringList("a"));
    (busFirst ? m_controller : m_bus)->setUp(false);
    QCOMPARE(m_ran, QStringList("a"));
}

void NetworkTasks::aTaskRunsEveryTime() {
    add(TaskOnConnect, "up");
    add(TaskOnDisconnect, "down");
    m_bus->setUp(true);
    m_controller->setUp(true);
    m_bus->setUp(false);
    m_bus->setUp(true);
    QCOMPARE(m_ran, QStringList({"up", "down", "up"}));
}

void NetworkTasks::withTheLinksUpATaskRunsAtOnce() {
    m_bus->setUp(true);
    m_controller->setUp(true);
    add(TaskOnConnect, "a");
    QCOMPARE(m_ran, QStringList("a"));
}

void NetworkTasks::aTaskForTheEndWaitsForTheEnd() {
    add(TaskOnDisconnect, "a");
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList());
}

void NetworkTasks::bothLinksAreSeenUpByATask() {
    QList<bool> seen;
    m_ids << qMakePair(TaskOnConnect, QString("look"));
    manager()->registerTask(TaskOnConnect, nullptr, "look",
                            [&](const TaskNetworkManager::Done&) {
                                seen << relay()->mobj()->c("connected")->getBool()
                                     << helm::ManagerHelper::instance()->controllerManager()->controllerConnected();
                            },
                            {});
    m_controller->setUp(true);
    m_bus->setUp(true);
    QCOMPARE(seen, QList<bool>({true, true}));
}

void NetworkTasks::tasksRunInTheOrderOfTheirRegistration() {
    for (const char* id : {"c", "a", "b"})
        add(TaskOnConnect, id);
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList({"c", "a", "b"}));
}

void NetworkTasks::aTaskRunsAfterThoseItNames() {
    add(TaskOnConnect, "a", {"b", "nobody"});
    add(TaskOnConnect, "b", {"c"});
    add(TaskOnConnect, "c");
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList({"c", "b", "a"}));
}

void NetworkTasks::tasksThatNameEachOtherRunOnce() {
    add(TaskOnConnect, "a", {"b"});
    add(TaskOnConnect, "b", {"a"});
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList({"b", "a"}));
}

void NetworkTasks::aTaskThatIsTakenBackDoesNotRun() {
    add(TaskOnConnect, "a");
    QVERIFY(manager()->unRegisterTask(TaskOnConnect, "a"));
    QVERIFY(!manager()->unRegisterTask(TaskOnConnect, "a"));
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList());
}

void NetworkTasks::aTaskTakesItselfBack() {
    m_ids << qMakePair(TaskOnConnect, QString("once"));
    manager()->registerTask(TaskOnConnect, nullptr, "once",
                            [this](const TaskNetworkManager::Done&) {
                                m_ran << "once";
                                manager()->unRegisterTask(TaskOnConnect, "once");
                            },
                            {});
    add(TaskOnConnect, "next");
    m_bus->setUp(true);
    m_controller->setUp(true);
    m_bus->setUp(false);
    m_bus->setUp(true);
    QCOMPARE(m_ran, QStringList({"once", "next", "next"}));
}

void NetworkTasks::aTaskThatIsRegisteredWhileTheLinkComesUpRunsOnce() {
    m_bus->setUp(true);
    QObject context;
    connect(helm::ManagerHelper::instance()->controllerManager(), &helm::ControllerManager::rcConnected, &context,
            [this] { add(TaskOnConnect, "late"); });
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList("late"));
}

void NetworkTasks::aTaskThatIsRegisteredAgainBeforeItsTurnRunsOnce() {
    m_ids << qMakePair(TaskOnConnect, QString("a"));
    manager()->registerTask(TaskOnConnect, nullptr, "a",
                            [this](const TaskNetworkManager::Done&) { add(TaskOnConnect, "b"); }, {});
    add(TaskOnConnect, "b");
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList("b"));
}

void NetworkTasks::aTaskThatPullsALinkEndsTheRound() {
    m_ids << qMakePair(TaskOnConnect, QString("a"));
    manager()->registerTask(TaskOnConnect, nullptr, "a",
                            [this](const TaskNetworkManager::Done&) {
                                m_ran << "a";
                                m_bus->setUp(false);
                            },
                            {});
    add(TaskOnConnect, "b");
    add(TaskOnDisconnect, "b");
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList({"a", "b"}));
}

void NetworkTasks::aTaskThatIsTakenOutByAnotherDoesNotRun() {
    auto owner = std::make_unique<QObject>();
    m_ids << qMakePair(TaskOnConnect, QString("first"));
    manager()->registerTask(TaskOnConnect, nullptr, "first", [&](const TaskNetworkManager::Done&) { owner.reset(); },
                            {});
    manager()->unRegisterTask(TaskOnConnect, "needs");
    add(TaskOnConnect, "needs", {"first"}, owner.get());
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList());
}

void NetworkTasks::aLinkThatIsPulledAndComesBackIsTwoChanges() {
    m_bus->setUp(true);
    m_controller->setUp(true);
    add(TaskOnDisconnect, "down");
    add(TaskOnConnect, "up");
    m_ran.clear();
    QObject context;
    connect(relay()->mobj()->c("connected"), &brisk::ModuleObject::changed, &context, [this](const QVariant& value) {
        if (!value.toBool())
            m_bus->setUp(true);
    });
    m_bus->setUp(false);
    QCOMPARE(m_ran, QStringList({"down", "up"}));
}

void NetworkTasks::anIdThatIsRegisteredAgainReplacesTheFirst() {
    add(TaskOnConnect, "a");
    add(TaskOnConnect, "a");
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList("a"));
}

void NetworkTasks::theTypesHaveIdsOfTheirOwn() {
    add(TaskOnConnect, "a");
    add(TaskOnDisconnect, "a");
    QVERIFY(manager()->unRegisterTask(TaskOnConnect, "a"));
    m_bus->setUp(true);
    m_controller->setUp(true);
    m_bus->setUp(false);
    QCOMPARE(m_ran, QStringList("a"));
}

void NetworkTasks::aTaskGoesWithItsOwner() {
    {
        QObject owner;
        add(TaskOnConnect, "a", {}, &owner);
    }
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList());
}

void NetworkTasks::theFirstOwnersEndLeavesTheNewTaskAlone() {
    QObject second;
    {
        QObject first;
        add(TaskOnConnect, "a", {}, &first);
        add(TaskOnConnect, "a", {}, &second);
    }
    m_bus->setUp(true);
    m_controller->setUp(true);
    QCOMPARE(m_ran, QStringList("a"));
}

void NetworkTasks::whatATaskThrowsIsHandedToTheHandler() {
    QStringList names;
    brisk::standin::setThrownHandler([&](GuardedCall call, const QString& name, const std::exception_ptr&) {
        QCOMPARE(call, GuardedCall::NetworkTask);
        names << name;
    });
    m_ids << qMakePair(TaskOnConnect, QString("bad"));
    manager()->registerTask(TaskOnConnect, nullptr, "bad",
                            [](const TaskNetworkManager::Done&) { throw std::runtime_error("boom"); }, {});
    add(TaskOnConnect, "good");
    m_bus->setUp(true);
    m_controller->setUp(true);
    brisk::standin::setThrownHandler({});
    QCOMPARE(names, QStringList("bad"));
    QCOMPARE(m_ran, QStringList("good"));
}

QTEST_GUILESS_MAIN(NetworkTasks)
#include "tst_tasknetworkmanager.moc"
