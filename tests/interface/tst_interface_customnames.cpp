#include "links.h"

// The first case has the first command of the process.
class TestCustomNames : public LinksTest {
    Q_OBJECT

private slots:
    void theNamesGoRoundFrom0To254() {
        for (int i = 0; i < 3 * 255 + 1; ++i)
            kiteInterface()->commandCustomData(nullptr, "g", "k");
        QCOMPARE(bus().sent.size(), 766);
        for (int i = 0; i < bus().sent.size(); ++i)
            QCOMPARE(bus().sent.at(i).key, QString("ServiceAPI.plugin_%1").arg(i % 255));
        QCOMPARE(bus().sent.at(254).key, QString("ServiceAPI.plugin_254"));
        QCOMPARE(bus().sent.at(255).key, QString("ServiceAPI.plugin_0"));
    }

    void aCommandThatIsNotSentHasANameToo() {
        kiteInterface()->commandCustomData(nullptr, "g", "k");
        const int before = bus().sent.last().key.section('_', 1).toInt();
        bus().setUp(false);
        kiteInterface()->commandCustomData(nullptr, "g", "k");
        bus().setUp(true);
        kiteInterface()->commandCustomData(nullptr, "g", "k");
        QCOMPARE(bus().sent.last().key.section('_', 1).toInt(), (before + 2) % 255);
    }
};

QTEST_GUILESS_MAIN(TestCustomNames)
#include "tst_interface_customnames.moc"
