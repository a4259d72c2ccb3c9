#include "errorline.h"
#include "links.h"

#include "brisk/modulemanager.h"

#include <QJsonArray>
#include <QJsonObject>

using brisk::ModuleObject;

class TestIoSignals : public LinksTest {
    Q_OBJECT

private slots:
    void cleanup() {
        m("orca")->clear(nullptr, false, true);
        end();
    }

    void valuesComeByTheNamesOfTheirNodes() {
        ModuleObject* values = m("orca.robot.io.signal_value");
        values->child("di_door")->setValue(nullptr, true);
        values->child("ao_speed")->setValue(nullptr, 2.5);
        values->child("gi_part")->setValue(nullptr, 7);
        values->child("leer.ä")->setValue(nullptr, "text");
        values->child("none");
        values->set(nullptr, "di_door.name", "other");
        const QHash<QString, QVariant> expected{
            {"di_door", true}, {"ao_speed", 2.5}, {"gi_part", 7}, {"leer.ä", "text"}, {"none", QVariant()}};
        QCOMPARE(kiteInterface()->getIOHash(), expected);
        QCOMPARE(kiteInterface()->getIOHash().value("gi_part").userType(), int(QMetaType::Int));
        QCOMPARE(kiteInterface()->getIOHash().value("di_door").userType(), int(QMetaType::Bool));
    }

    void valuesAreReadAfresh() {
        m("orca.robot.io.signal_value.a")->setValue(nullptr, 1);
        QCOMPARE(kiteInterface()->getIOHash().value("a"), QVariant(1));
        m("orca.robot.io.signal_value.a")->setValue(nullptr, 2);
        QCOMPARE(kiteInterface()->getIOHash().value("a"), QVariant(2));
        delete m("orca.robot.io.signal_value.a");
        QVERIFY(kiteInterface()->getIOHash().isEmpty());
    }

    // A node of a kind of its own says itself what its value is.
    void theValueIsWhatTheNodeSays() {
        class Negated : public ModuleObject {
        public:
            using ModuleObject::ModuleObject;
            QVariant value(const QVariant& fallback) const override {
                return fallback.isValid() ? QVariant("a default") : QVariant(!ModuleObject::value().toBool());
            }
        };
        auto* node = new Negated("n");
        node->setValue(nullptr, true);
        m("orca.robot.io.signal_value")->insertChild(-1, node);
        QCOMPARE(kiteInterface()->getIOHash().value("n"), QVariant(false));
    }

    void withoutSignalsThereIsNothing() {
        QVERIFY(kiteInterface()->getIOHash().isEmpty());
        QCOMPARE(kiteInterface()->getIOByType(1), QStringList());
        m("orca.robot.io")->setValue(nullptr, "none");
        QVERIFY(kiteInterface()->getIOHash().isEmpty());
        QCOMPARE(kiteInterface()->getIOByType("DI"), QStringList());
        m("orca.robot.io.signal_value")->setValue(nullptr, 5);
        m("orca.robot.io.signal_detail")->setValue(nullptr, 5);
        QVERIFY(kiteInterface()->getIOHash().isEmpty());
        QCOMPARE(kiteInterface()->getIOByType("DI"), QStringList());
        QCOMPARE(log().lines(), QStringList());
    }

    void eachTypeHasItsNumberAndItsText_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("DI") << 1 << "DI" << QStringList{"z1", "a1"};
        QTest::newRow("DO") << 2 << "DO" << QStringList{"z2", "a2"};
        QTest::newRow("GI") << 3 << "GI" << QStringList{"z3", "a3"};
        QTest::newRow("GO") << 4 << "GO" << QStringList{"z4", "a4"};
        QTest::newRow("AI") << 5 << "AI" << QStringList{"z5", "a5"};
        QTest::newRow("AO") << 6 << "AO" << QStringList{"z6", "a6"};
    }
    void eachTypeHasItsNumberAndItsText() {
        QFETCH(int, type);
        QFETCH(QString, text);
        QFETCH(QStringList, names);
        for (const char* prefix : {"z", "a"}) {
            for (int i = 6; i >= 1; --i)
                detail(prefix + QString::number(i), i);
        }
        QCOMPARE(kiteInterface()->getIOByType(type), names);
        QCOMPARE(kiteInterface()->getIOByType(text), names);
        QCOMPARE(log().lines(), QStringList());
        QCOMPARE(bus().sent.size() + controller().sent.size(), 0);
    }

    void aSignalWithoutATypeIsOfNone() {
        detail("a", QVariant());
        detail("b", "1");
        detail("c", "DI");
        detail("d", 0);
        detail("e", 7);
        m("orca.robot.io.signal_detail.f")->setValue(nullptr, 1);
        QCOMPARE(kiteInterface()->getIOByType(1), QStringList{"b"});
        for (int type = 2; type <= 6; ++type)
            QCOMPARE(kiteInterface()->getIOByType(type), QStringList());
    }

    void detailsAndValuesAreApart() {
        detail("only_detail", 1);
        m("orca.robot.io.signal_value.only_value.signal_type")->setValue(nullptr, 1);
        QCOMPARE(kiteInterface()->getIOByType(1), QStringList{"only_detail"});
        QCOMPARE(kiteInterface()->getIOHash().keys(), QStringList{"only_value"});
    }

    void anotherNumberIsAnErrorLine_data() {
        QTest::addColumn<int>("type");
        for (int type : {0, 7, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
            QTest::addRow("%d", type) << type;
    }
    void anotherNumberIsAnErrorLine() {
        QFETCH(int, type);
        detail("a", type);
        log().expect("Get IO By Err Signaltype!");
        QCOMPARE(kiteInterface()->getIOByType(type), QStringList());
        verifyErrorLine(log(), folder(), "<kite interfacemanager>Get IO By Err Signaltype!");
    }

    void anotherTextIsAnErrorLine_data() {
        QTest::addColumn<QString>("type");
        for (const char* text : {"do", "Do", "", "D", "DIO", " DI", "DI ", "1", "BI", "-1"})
            QTest::addRow("\"%s\"", text) << text;
        QTest::newRow("null") << QString();
    }
    void anotherTextIsAnErrorLine() {
        QFETCH(QString, type);
        detail("a", -1);
        log().expect("Get IO By Err Signaltype!");
        QCOMPARE(kiteInterface()->getIOByType(type), QStringList());
        verifyErrorLine(log(), folder(), "<kite interfacemanager>Get IO By Err Signaltype!");
    }

private:
    static void detail(const QString& name, const QVariant& type) {
        m("orca.robot.io.signal_detail")->child(name)->child("signal_type")->setValue(nullptr, type);
    }
};

QTEST_GUILESS_MAIN(TestIoSignals)
#include "tst_iosignals.moc"
