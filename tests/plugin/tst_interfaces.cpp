#include "kite/interfaces.h"
#include "pendanttest/fakelink.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPointer>
#include <QTest>

using brisk::standin::contentOf;
using brisk::standin::Verb;
using pendanttest::FakeLink;

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
        const QJsonObject answer{{"speed", QJsonObject{{"max", 250}}}, {"name", "left"}};
        FakeLink link;
        link.answerWith(contentOf(QVariant(answer)));
        kite::NetworkInterface network(nullptr);
        QCOMPARE(network.get(QStringLiteral("robot.state")), QJsonValue(answer));
        QCOMPARE(link.sentAs(Verb::Get), QStringList{"robot.state||null"});
    }

    void aSingleValueComesAsItIs() {
        FakeLink link;
        link.answerWith(contentOf(QVariant(1.5)));
        QCOMPARE(kite::NetworkInterface(nullptr).get(QStringLiteral("robot.speed")), QJsonValue(1.5));
    }

    void aListComesAsAnArray() {
        FakeLink link;
        link.answerWith(contentOf(QVariant(QJsonArray{1, 2, 3})));
        QCOMPARE(kite::NetworkInterface(nullptr).get(QStringLiteral("robot.axes")), QJsonValue(QJsonArray{1, 2, 3}));
    }

    void aMissingAnswerIsNull() {
        FakeLink link;
        link.answerWith(nullptr);
        QCOMPARE(kite::NetworkInterface(nullptr).get(QStringLiteral("robot.speed")), QJsonValue());
        QCOMPARE(link.sent.size(), 1);
    }

    void withTheLinkDownTheAnswerIsNull() {
        FakeLink link;
        link.answerWith(contentOf(QVariant(1.5)));
        link.setUp(false);
        QCOMPARE(kite::NetworkInterface(nullptr).get(QStringLiteral("robot.speed")), QJsonValue());
    }
};

QTEST_MAIN(TestInterfaces)
#include "tst_interfaces.moc"
