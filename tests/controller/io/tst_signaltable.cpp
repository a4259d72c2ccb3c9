#include "../contents.h"

#include "controller/io/signaltable.h"

#include <QSignalSpy>
#include <QTest>

using controller::Clock;
using controller::IoSignal;
using controller::SignalTable;
using controller::SignalType;

namespace {

// One of each type; "button" is pressed in the last of every four seconds.
QVector<IoSignal> oneOfEach() {
    return {{"button", SignalType::DigitalInput, false, 0, 0, controller::pulse(1000, 4000)},
            {"lamp", SignalType::DigitalOutput, false, 0, 0, nullptr},
            {"code", SignalType::GroupInput, 3, 0, 255, nullptr},
            {"job", SignalType::GroupOutput, 1, 1, 9, nullptr},
            {"force", SignalType::AnalogueInput, 0.5, 0, 10, nullptr},
            {"speed", SignalType::AnalogueOutput, 2.0, 0, 10, nullptr}};
}

} // namespace

class TestSignalTable : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_clock = std::make_unique<Clock>();
        m_table = std::make_unique<SignalTable>(m_clock.get());
        m_table->start(oneOfEach());
    }
    void cleanup() {
        m_table.reset();
        m_clock.reset();
    }

    void everyValueHasTheTypeOfItsSignal() {
        QCOMPARE(m_table->value("button"), QVariant(false));
        QCOMPARE(m_table->value("code"), QVariant(3));
        QCOMPARE(m_table->value("speed"), QVariant(2.0));
        QCOMPARE(m_table->value("speed").userType(), int(QMetaType::Double));
        QVERIFY(m_table->set("speed", 4).isEmpty());
        QCOMPARE(m_table->value("speed").userType(), int(QMetaType::Double));
        QVERIFY(!m_table->value("nothing").isValid());
    }

    void theContentIsInTheOrderOfTheCell() {
        const controller::Content content = m_table->content();
        for (const char* part : {"signal_value", "signal_detail"})
            QCOMPARE(childNames(brisk::standin::contentOf(content->c(part))), "button lamp code job force speed");
        QCOMPARE(text(brisk::standin::contentOf(content->r("signal_detail.button"))),
                 R"({"forced":false,"signal_type":1})");
        QCOMPARE(text(brisk::standin::contentOf(content->r("signal_detail.job"))),
                 R"({"forced":false,"max":9,"min":1,"signal_type":4})");
    }

    void anOutputIsSet() {
        QSignalSpy changed(m_table.get(), &SignalTable::changed);
        QCOMPARE(m_table->set("lamp", true), QString());
        QCOMPARE(m_table->set("job", 9), QString());
        QCOMPARE(m_table->set("speed", 0.25), QString());
        QCOMPARE(changed.size(), 3);
        QCOMPARE(m_table->value("lamp"), QVariant(true));
        QCOMPARE(m_table->value("job"), QVariant(9));
        QCOMPARE(m_table->value("speed"), QVariant(0.25));
    }

    void whatDoesNotFitIsRefused_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("says");
        const auto row = [](const char* title, const char* name, const QJsonValue& value, const char* says) {
            QTest::newRow(title) << name << value << says;
        };
        row("unknown", "lamb", true, "The controller has no signal \"lamb\".");
        row("input", "button", true, "The signal \"button\" is an input: force it by \"io.force\".");
        row("number for a bool", "lamp", 1, "The signal \"lamp\" takes true or false.");
        row("nothing", "lamp", QJsonValue(), "The signal \"lamp\" takes true or false.");
        row("bool for a number", "job", true, "The signal \"job\" takes a whole number from 1 to 9.");
        row("text", "speed", "3", "The signal \"speed\" takes a number from 0 to 10.");
        row("half", "job", 2.5, "The signal \"job\" takes a whole number from 1 to 9.");
        row("too small", "job", 0, "The signal \"job\" takes a whole number from 1 to 9.");
        row("too great", "speed", 10.001, "The signal \"speed\" takes a number from 0 to 10.");
    }

    void whatDoesNotFitIsRefused() {
        QFETCH(QString, name);
        QFETCH(QJsonValue, value);
        QSignalSpy changed(m_table.get(), &SignalTable::changed);
        const QString before = text(m_table->content());
        QTEST(m_table->set(name, value), "says");
        QCOMPARE(changed.size(), 0);
        QCOMPARE(text(m_table->content()), before);
    }

    void anOutputIsNotForced() {
        QCOMPARE(m_table->force("lamp", true), "The signal \"lamp\" is an output: set it by \"io.set\".");
        QCOMPARE(m_table->force("code", 256), "The signal \"code\" takes a whole number from 0 to 255.");
        QCOMPARE(m_table->release("lamb"), "The controller has no signal \"lamb\".");
        QCOMPARE(m_table->value("lamp"), QVariant(false));
    }

    void aForcedInputWinsOverTheCellUntilItIsReleased() {
        QSignalSpy changed(m_table.get(), &SignalTable::changed);
        QCOMPARE(m_table->force("button", false), QString());
        QCOMPARE(changed.size(), 1);
        m_clock->step(3500);
        QCOMPARE(m_table->value("button"), QVariant(false));
        QCOMPARE(changed.size(), 1);
        QVERIFY(m_table->content()->r("signal_detail.button.forced")->getBool());
        QCOMPARE(m_table->release("button"), QString());
        QCOMPARE(m_table->value("button"), QVariant(true));
        QVERIFY(!m_table->content()->r("signal_detail.button.forced")->getBool());
        QCOMPARE(changed.size(), 2);
        QCOMPARE(m_table->release("button"), QString());
        QCOMPARE(changed.size(), 2);
    }

    void aForcedInputHasWhatTheCellWroteWhenItIsReleased() {
        QCOMPARE(m_table->force("force", 9.5), QString());
        m_table->write("force", 4);
        QCOMPARE(m_table->value("force"), QVariant(9.5));
        QCOMPARE(m_table->release("force"), QString());
        QCOMPARE(m_table->value("force"), QVariant(4.0));
    }

    void aSignalFollowsItsCourse() {
        QStringList seen;
        connect(m_table.get(), &SignalTable::changed, this,
                [&] { seen << QString("%1 %2").arg(m_clock->nowMs()).arg(m_table->value("button").toBool()); });
        m_clock->step(8500);
        QCOMPARE(seen, (QStringList{"3000 1", "4000 0", "7000 1", "8000 0"}));
    }

    void signalsThatChangeTogetherAreToldOfOnce() {
        m_table->start({{"a", SignalType::DigitalInput, false, 0, 0, controller::pulse(500, 1000)},
                        {"b", SignalType::GroupInput, 0, 0, 5, controller::counter(0, 500)}});
        QSignalSpy changed(m_table.get(), &SignalTable::changed);
        m_clock->step(1000);
        QCOMPARE(changed.size(), 2);
    }

    void aCourseStaysWithinTheLimits() {
        m_table->start({{"b", SignalType::GroupInput, 0, 1, 2, controller::counter(0, 500)},
                        {"w", SignalType::GroupInput, 0, 0, 9, controller::wave(0, 1, 2000)}});
        QCOMPARE(m_table->value("b"), QVariant(1));
        m_clock->step(5000);
        QCOMPARE(m_table->value("b"), QVariant(2));
        QCOMPARE(m_table->value("w"), QVariant(1));
    }

    void whatIsWrittenEndsTheCourse() {
        m_table->start({{"blink", SignalType::DigitalOutput, false, 0, 0, controller::pulse(500, 1000)},
                        {"wave", SignalType::AnalogueInput, 0.0, 0, 10, controller::wave(0, 10, 1000)}});
        m_clock->step(500);
        QCOMPARE(m_table->value("blink"), QVariant(true));
        QCOMPARE(m_table->set("blink", false), QString());
        m_table->write("wave", 3);
        m_table->write("nothing", 3);
        m_clock->step(2500);
        QCOMPARE(m_table->value("blink"), QVariant(false));
        QCOMPARE(m_table->value("wave"), QVariant(3.0));
    }

    void anotherCellBeginsWithoutForcedSignals() {
        QCOMPARE(m_table->force("code", 7), QString());
        m_table->start(oneOfEach());
        QCOMPARE(m_table->value("code"), QVariant(3));
        m_table->start({});
        QVERIFY(!m_table->value("code").isValid());
        QCOMPARE(childNames(m_table->content()), "signal_value signal_detail");
    }

private:
    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<SignalTable> m_table;
};

QTEST_GUILESS_MAIN(TestSignalTable)
#include "tst_signaltable.moc"
