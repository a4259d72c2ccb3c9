#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "brisk/modulemanager.h"
#include "kite/kitemodule.h"

#include <QTest>

using kite::Kite;

namespace {

brisk::ModuleObject* countNode() {
    return m(QStringLiteral("helm.msg._"));
}

int windows() {
    return countNode()->getInt(0);
}

} // namespace

class TestModelWindow : public QObject {
    Q_OBJECT

private slots:
    void init() { m_log.reset(new pendanttest::LogWatch); }

    void cleanup() {
        m_log.reset();
        pendanttest::resetHost();
    }

    void openingAndClosingCountsUpAndDown() {
        Kite module(QStringLiteral("weld"), nullptr);
        QVERIFY(module.changeModelWindowStatus(true));
        QCOMPARE(windows(), 1);
        QVERIFY(module.changeModelWindowStatus(false));
        QCOMPARE(windows(), 0);
    }

    void openingTwiceCountsOnce() {
        Kite module(QStringLiteral("weld"), nullptr);
        QVERIFY(module.changeModelWindowStatus(true));
        QVERIFY(!module.changeModelWindowStatus(true));
        QCOMPARE(windows(), 1);
        QCOMPARE(m_log->lines().size(), 1);
    }

    void closingWhatIsClosedChangesNothingAndSaysNothing() {
        countNode()->setValue(nullptr, 4);
        Kite module(QStringLiteral("weld"), nullptr);
        QVERIFY(!module.changeModelWindowStatus(false));
        QCOMPARE(windows(), 4);
        QVERIFY(m_log->lines().isEmpty());
    }

    void allPluginsShareTheCount() {
        Kite weld(QStringLiteral("weld"), nullptr);
        Kite paint(QStringLiteral("paint"), nullptr);
        QVERIFY(weld.changeModelWindowStatus(true));
        QVERIFY(paint.changeModelWindowStatus(true));
        QCOMPARE(windows(), 2);
        QVERIFY(weld.changeModelWindowStatus(false));
        QCOMPARE(windows(), 1);
    }

    void theCountHasNoLowerBound() {
        Kite module(QStringLiteral("weld"), nullptr);
        QVERIFY(module.changeModelWindowStatus(true));
        countNode()->setValue(nullptr, 0);
        QVERIFY(module.changeModelWindowStatus(false));
        QCOMPARE(windows(), -1);
        QCOMPARE(m_log->count(QStringLiteral("Current Model Count : -1")), 1);
    }

    void theModuleIsTheSender() {
        Kite module(QStringLiteral("weld"), nullptr);
        QObject* sender = nullptr;
        QObject context;
        connect(countNode(), &brisk::ModuleObject::changed, &context,
                [&](const QVariant&, const QVariant&, QObject* by) { sender = by; });
        module.changeModelWindowStatus(true);
        QCOMPARE(sender, &module);
    }

    // A listener that corrects the count is heard: the line tells the value that the node then has.
    void theLineTellsTheValueReadAgain() {
        Kite module(QStringLiteral("weld"), nullptr);
        QObject context;
        connect(countNode(), &brisk::ModuleObject::changed, &context, [](const QVariant& value) {
            if (value.toInt() == 1)
                countNode()->setValue(nullptr, 7, false);
        });
        module.changeModelWindowStatus(true);
        QCOMPARE(m_log->count(QStringLiteral("Current Model Count : 7")), 1);
    }

    void aListenerMayDeleteTheModule() {
        auto* module = new Kite(QStringLiteral("weld"), nullptr);
        QObject context;
        connect(countNode(), &brisk::ModuleObject::changed, &context, [module] { delete module; });
        QVERIFY(module->changeModelWindowStatus(true));
        QCOMPARE(m_log->count(QStringLiteral("Current Model Count : 1")), 1);
    }

    void theLineIsAServiceLine() {
        Kite module(QStringLiteral("weld"), nullptr);
        module.changeModelWindowStatus(true);
        const QString line = m_log->lines().value(0);
        QVERIFY2(line.startsWith(QStringLiteral("\x1b[35m[S|")), qPrintable(line));
        QVERIFY2(line.endsWith(QStringLiteral("]<kite>Current Model Count : 1\x1b[0m")), qPrintable(line));
    }

    void aModuleThatGoesLeavesTheCountAsItIs() {
        {
            Kite module(QStringLiteral("weld"), nullptr);
            module.changeModelWindowStatus(true);
        }
        QCOMPARE(windows(), 1);
    }

private:
    pendanttest::WorkingFolder m_folder;
    QScopedPointer<pendanttest::LogWatch> m_log;
};

QTEST_MAIN(TestModelWindow)
#include "tst_kitemodule_modelwindow.moc"
