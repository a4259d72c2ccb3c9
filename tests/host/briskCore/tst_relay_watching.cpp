#include "brisk/guarded.h"
#include "brisk/hostfaults.h"
#include "brisk/relay.h"
#include "pendanttest/fakelink.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <stdexcept>

using brisk::ModuleObject;
using brisk::standin::GuardedCall;
using brisk::standin::Verb;
using pendanttest::FakeLink;

class RelayWatching : public QObject {
    Q_OBJECT

private slots:
    void init() { m_link.reset(new FakeLink); }
    void cleanup();

    void aKeyHasOneWatchNodeForLife();
    void theFarSideIsToldOfTheFirstWatcherAndTheLast();
    void nobodyIsAWatcherLikeAnother();
    void aSenderThatIsDestroyedWatchesNoMore();
    void unwatchingWhatNobodyWatchesIsToldAllTheSame();
    void aDeliveryIsAnnouncedOnce_data();
    void aDeliveryIsAnnouncedOnce();
    void theWatchNodeHoldsWhatWasDelivered();
    void theValueBeforeIsTold();
    void nothingAtAllIsAnnouncedAsNoValue();
    void theWatchNodeMayBeDeletedByWhoListensToWhatItHeld();
    void whatNobodyWatchesIsNotAnnounced();
    void watchesSurviveTheLink();
    void watchesMadeWithTheLinkDownAreSentWhenItComesUp();
    void whatAListenerThrowsIsHandedToTheHandler();
    void withoutAHandlerItComesOut();
    void aWatchNodeMayBeNull();

private:
    std::unique_ptr<FakeLink> m_link;
};

void RelayWatching::cleanup() {
    for (const char* key : {"io", "io.di"})
        relay()->watch(nullptr, key, false);
    brisk::standin::setThrownHandler({});
    brisk::standin::hostFaults() = {};
    m_link.reset();
}

void RelayWatching::aKeyHasOneWatchNodeForLife() {
    ModuleObject* node = relay()->watchNode("io");
    QVERIFY(node);
    relay()->watch(nullptr, "io", true);
    relay()->watch(nullptr, "io", false);
    QCOMPARE(relay()->watchNode("io"), node);
    QVERIFY(relay()->watchNode("io.di") != node);
    QVERIFY(relay()->execCommand(nullptr, "io") != node);
}

void RelayWatching::theFarSideIsToldOfTheFirstWatcherAndTheLast() {
    QObject one;
    QObject two;
    relay()->watch(&one, "io", true);
    relay()->watch(&two, "io", true);
    relay()->watch(&one, "io", true);
    QCOMPARE(m_link->sentAs(Verb::Watch), QStringList("io||null"));
    relay()->watch(&one, "io", false);
    QCOMPARE(m_link->sentAs(Verb::Unwatch), QStringList());
    relay()->watch(&two, "io", false);
    QCOMPARE(m_link->sentAs(Verb::Unwatch), QStringList("io||null"));
}

void RelayWatching::nobodyIsAWatcherLikeAnother() {
    QObject one;
    relay()->watch(nullptr, "io", true);
    relay()->watch(&one, "io", true);
    relay()->watch(nullptr, "io", false);
    QCOMPARE(m_link->sentAs(Verb::Unwatch), QStringList());
    relay()->watch(&one, "io", false);
    QCOMPARE(m_link->sentAs(Verb::Unwatch), QStringList("io||null"));
}

void RelayWatching::aSenderThatIsDestroyedWatchesNoMore() {
    relay()->watch(nullptr, "io", true);
    {
        QObject one;
        relay()->watch(&one, "io", true);
        relay()->watch(&one, "io.di", true);
    }
    QCOMPARE(m_link->sentAs(Verb::Unwatch), QStringList("io.di||null"));
    m_link->sent.clear();
    relay()->watch(nullptr, "io", false);
    QCOMPARE(m_link->sentAs(Verb::Unwatch), QStringList("io||null"));
}

void RelayWatching::unwatchingWhatNobodyWatchesIsToldAllTheSame() {
    relay()->watch(nullptr, "io", false);
    QCOMPARE(m_link->sentAs(Verb::Unwatch), QStringList("io||null"));
}

void RelayWatching::aDeliveryIsAnnouncedOnce_data() {
    QTest::addColumn<QVariant>("delivered");
    QTest::addColumn<QVariant>("announced");
    const QJsonObject object{{"di1", true}, {"di2", false}};
    QTest::newRow("value") << QVariant(7) << QVariant(7);
    QTest::newRow("nothing") << QVariant() << QVariant();
    QTest::newRow("object") << QVariant(object) << QVariant(object);
    QTest::newRow("array") << QVariant(QJsonArray{1, 2}) << QVariant(QJsonArray{1, 2});
    QTest::newRow("empty array") << QVariant(QJsonArray()) << QVariant(QJsonArray());
}

void RelayWatching::aDeliveryIsAnnouncedOnce() {
    QFETCH(QVariant, delivered);
    QFETCH(QVariant, announced);
    relay()->watch(nullptr, "io", true);
    QSignalSpy changed(relay()->watchNode("io"), &ModuleObject::changed);
    m_link->deliver("io", delivered);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().at(0), announced);
    QVERIFY(!changed.first().at(2).value<QObject*>());
}

void RelayWatching::theWatchNodeHoldsWhatWasDelivered() {
    relay()->watch(nullptr, "io", true);
    m_link->deliver("io", QJsonObject{{"di1", true}});
    m_link->deliver("io", QJsonObject{{"di2", true}});
    QCOMPARE(relay()->watchNode("io")->exportToJson(true), QJsonValue(QJsonObject{{"di2", true}}));
}

void RelayWatching::theValueBeforeIsTold() {
    relay()->watch(nullptr, "io", true);
    m_link->deliver("io", 1);
    QSignalSpy changed(relay()->watchNode("io"), &ModuleObject::changed);
    m_link->deliver("io", 2);
    QCOMPARE(changed.first().at(1), QVariant(1));
}

void RelayWatching::nothingAtAllIsAnnouncedAsNoValue() {
    relay()->watch(nullptr, "io", true);
    m_link->deliver("io", QJsonArray{1});
    QSignalSpy changed(relay()->watchNode("io"), &ModuleObject::changed);
    emit m_link->delivered("io", nullptr);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first(), QVariant());
}

void RelayWatching::theWatchNodeMayBeDeletedByWhoListensToWhatItHeld() {
    relay()->watch(nullptr, "io", true);
    m_link->deliver("io", QJsonObject{{"di1", true}});
    ModuleObject* node = relay()->watchNode("io");
    connect(node->c("di1"), &QObject::destroyed, this, [node] { delete node; });
    m_link->deliver("io", QJsonObject{{"di1", false}});
    QVERIFY(relay()->watchNode("io"));
}

void RelayWatching::whatNobodyWatchesIsNotAnnounced() {
    QSignalSpy changed(relay()->watchNode("io"), &ModuleObject::changed);
    m_link->deliver("io", 1);
    QCOMPARE(changed.size(), 0);
}

void RelayWatching::watchesSurviveTheLink() {
    relay()->watch(nullptr, "io", true);
    m_link->sent.clear();
    m_link->setUp(false);
    m_link->setUp(true);
    QCOMPARE(m_link->sentAs(Verb::Watch), QStringList("io||null"));
}

void RelayWatching::watchesMadeWithTheLinkDownAreSentWhenItComesUp() {
    m_link->setUp(false);
    relay()->watch(nullptr, "io", true);
    QCOMPARE(m_link->sent.size(), 0);
    m_link->setUp(true);
    QCOMPARE(m_link->sentAs(Verb::Watch), QStringList("io||null"));
}

void RelayWatching::whatAListenerThrowsIsHandedToTheHandler() {
    QString key;
    QString text;
    brisk::standin::setThrownHandler([&](GuardedCall call, const QString& name, const std::exception_ptr& thrown) {
        QCOMPARE(call, GuardedCall::BusDelivery);
        key = name;
        try {
            std::rethrow_exception(thrown);
        } catch (const std::exception& exception) {
            text = exception.what();
        }
    });
    relay()->watch(nullptr, "io", true);
    ModuleObject* node = relay()->watchNode("io");
    const auto connection = connect(node, &ModuleObject::changed, [] { throw std::runtime_error("boom"); });
    m_link->deliver("io", 1);
    disconnect(connection);
    QCOMPARE(key, QString("io"));
    QCOMPARE(text, QString("boom"));
    QSignalSpy changed(node, &ModuleObject::changed);
    m_link->deliver("io", 2);
    QCOMPARE(changed.size(), 1);
}

void RelayWatching::withoutAHandlerItComesOut() {
    relay()->watch(nullptr, "io", true);
    const auto connection =
        connect(relay()->watchNode("io"), &ModuleObject::changed, [] { throw std::runtime_error("boom"); });
    QVERIFY_EXCEPTION_THROWN(m_link->deliver("io", 1), std::runtime_error);
    disconnect(connection);
}

void RelayWatching::aWatchNodeMayBeNull() {
    brisk::standin::hostFaults().nullWatchNodes = true;
    QVERIFY(!relay()->watchNode("io"));
}

QTEST_GUILESS_MAIN(RelayWatching)
#include "tst_relay_watching.moc"
