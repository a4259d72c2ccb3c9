#include "kite/interfaces.h"

#include "brisk/buslink.h"
#include "brisk/relay.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPointer>
#include <QTest>

namespace {

// Answers one key.
class Answer : public brisk::standin::BusLink {
public:
    Answer(const QString& key, brisk::ModuleObject* answer) : m_key(key), m_answer(answer) {
        brisk::standin::setBusLink(this);
    }
    ~Answer() override { brisk::standin::setBusLink(nullptr); }

    brisk::ModuleObject* get(const QString& key, const QString&) override { return key == m_key ? m_answer : nullptr; }

private:
    QString m_key;
    brisk::ModuleObject* m_answer;
};

} // namespace

class TestInterfaces : public QObject {
    Q_OBJECT

private slots:
    void everyMarkerIsOwnedByItsParent() {
        auto* parent = new QObject;
        const QList<QPointer<QObject>> markers{new kite::BaseInterface(parent), new kite::CustomInterface(parent),
                                               new kite::NetworkInterface(parent), new kite::ServiceInterface(parent)};
        for (const QPointer<QObject>& marker : markers)
            QCOMPARE(marker->parent(), parent);
        delete parent;
        for (const QPointer<QObject>& marker : markers)
            QVERIFY(marker.isNull());
    }

    void everyMarkerIsABaseInterface() {
        QVERIFY((std::is_base_of<kite::BaseInterface, kite::CustomInterface>::value));
        QVERIFY((std::is_base_of<kite::BaseInterface, kite::NetworkInterface>::value));
        QVERIFY((std::is_base_of<kite::BaseInterface, kite::ServiceInterface>::value));
        QVERIFY((std::is_base_of<QObject, kite::BaseInterface>::value));
    }

    void onlyTheNetworkInterfaceHasAMetaObject() {
        QCOMPARE(kite::BaseInterface(nullptr).metaObject()->className(), "QObject");
        QCOMPARE(kite::CustomInterface(nullptr).metaObject()->className(), "QObject");
        QCOMPARE(kite::ServiceInterface(nullptr).metaObject()->className(), "QObject");
        QCOMPARE(kite::NetworkInterface(nullptr).metaObject()->className(), "kite::NetworkInterface");
    }

    void theNetworkInterfaceGivesTheBussAnswerWithItsChildren() {
        brisk::ModuleObject answer(QStringLiteral("answer"));
        answer.set(nullptr, QStringLiteral("speed.max"), 250);
        answer.set(nullptr, QStringLiteral("name"), QStringLiteral("left"));
        const Answer link(QStringLiteral("robot.state"), &answer);
        kite::NetworkInterface network(nullptr);
        const QJsonObject expected{{"speed", QJsonObject{{"max", 250}}}, {"name", "left"}};
        QCOMPARE(network.get(QStringLiteral("robot.state")), QJsonValue(expected));
    }

    void aSingleValueComesAsItIs() {
        brisk::ModuleObject answer(QStringLiteral("answer"));
        answer.setValue(nullptr, 1.5);
        const Answer link(QStringLiteral("robot.speed"), &answer);
        QCOMPARE(kite::NetworkInterface(nullptr).get(QStringLiteral("robot.speed")), QJsonValue(1.5));
    }

    void aListComesAsAnArray() {
        brisk::ModuleObject answer(QStringLiteral("answer"));
        answer.setList(nullptr, {1, 2, 3});
        const Answer link(QStringLiteral("robot.axes"), &answer);
        QCOMPARE(kite::NetworkInterface(nullptr).get(QStringLiteral("robot.axes")), QJsonValue(QJsonArray{1, 2, 3}));
    }

    void aMissingAnswerIsNull() {
        const Answer link(QStringLiteral("robot.speed"), nullptr);
        QCOMPARE(kite::NetworkInterface(nullptr).get(QStringLiteral("robot.speed")), QJsonValue());
    }

    void withTheLinkDownTheAnswerIsNull() {
        brisk::standin::setBusLink(nullptr);
        QCOMPARE(kite::NetworkInterface(nullptr).get(QStringLiteral("robot.speed")), QJsonValue());
    }
};

QTEST_MAIN(TestInterfaces)
#include "tst_interfaces.moc"
