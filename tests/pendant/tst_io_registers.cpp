#include "iofixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QPlainTextEdit>

// The registers on the page of signals.
class TestIoRegisters : public QObject {
    Q_OBJECT

private slots:
    void theRegistersAreListedWithTheirValues();
    void theyAreLive();
    void aRegisterIsChanged();
    void allValuesCanBeTakenOut();
    void whatIsTypedIsUndone();
    void whatIsBeingTypedIsNotOverwritten();
    void anotherRegisterForgetsWhatWasTyped();
    void oneIsFoundByItsName();
    void withoutRegistersItSaysWhereTheyComeFrom();
    void withoutTheBusNothingCanBeChanged();
    void theHeadingsSpeakTheLanguage();
};

namespace {

struct Bench : IoBench {
    Bench() { click("ioRegistersPart"); }

    /// Presses the row of that register.
    void pick(const QString& name) {
        for (int row = 0; row < table()->model()->rowCount(); ++row) {
            const QModelIndex index = table()->model()->index(row, 0);
            if (index.data().toString() == name)
                QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, table()->visualRect(index).center());
        }
        Frame::settle();
    }
    QPlainTextEdit* edit() const { return find<QPlainTextEdit>("registerValues"); }
    void type(const QString& text) {
        edit()->selectAll();
        QTest::keyClicks(edit(), text);
    }
    QString inTable() const {
        QStringList lines;
        for (int row = 0; row < table()->model()->rowCount(); ++row)
            lines << table()->model()->index(row, 0).data().toString() + '=' +
                         table()->model()->index(row, 1).data().toString();
        return lines.join(' ');
    }
    void set(const QString& name, const QStringList& values) {
        robot.controller()->registers()->set(name, values);
        robot.settle();
        Frame::settle();
    }
    QString inController() {
        return QString::fromUtf8(
            QJsonDocument(robot.controller()->bus()->value("register.list")->exportToJson(true).toArray())
                .toJson(QJsonDocument::Compact));
    }
};

} // namespace

void TestIoRegisters::theRegistersAreListedWithTheirValues() {
    const Bench bench;
    QCOMPARE(bench.inTable(), QString("order=A-17, bracket good_bad=112, 3 operator= alarms="));
    QCOMPARE(bench.find<QLabel>("ioCount")->text(), QString("4"));
    QVERIFY(!bench.edit()->isVisible());
}

void TestIoRegisters::theyAreLive() {
    Bench bench;
    bench.pick("order");
    QCOMPARE(bench.edit()->toPlainText(), QString("A-17\nbracket"));
    bench.set("order", {"A-18"});
    QVERIFY(bench.inTable().startsWith("order=A-18 "));
    QCOMPARE(bench.edit()->toPlainText(), QString("A-18"));
}

void TestIoRegisters::aRegisterIsChanged() {
    Bench bench;
    bench.pick("operator");
    QVERIFY(!bench.find("registerSet")->isEnabled());
    bench.type("Ada");
    QTest::keyClick(bench.edit(), Qt::Key_Return);
    QTest::keyClicks(bench.edit(), "late shift");
    bench.click("registerSet");
    QVERIFY(bench.inController().contains(R"({"name":"operator","value":["Ada","late shift"]})"));
    QVERIFY(bench.inTable().contains("operator=Ada, late shift"));
    QVERIFY(!bench.find("registerSet")->isEnabled());
    QVERIFY(!bench.find("registerUndo")->isEnabled());
}

void TestIoRegisters::allValuesCanBeTakenOut() {
    Bench bench;
    bench.pick("order");
    bench.edit()->selectAll();
    QTest::keyClick(bench.edit(), Qt::Key_Delete);
    bench.click("registerSet");
    QVERIFY(bench.inController().contains(R"({"name":"order","value":[]})"));
}

void TestIoRegisters::whatIsTypedIsUndone() {
    Bench bench;
    bench.pick("order");
    const QString before = bench.inController();
    bench.type("nonsense");
    bench.click("registerUndo");
    QCOMPARE(bench.edit()->toPlainText(), QString("A-17\nbracket"));
    QVERIFY(!bench.find("registerUndo")->isEnabled());
    QCOMPARE(bench.inController(), before);
}

void TestIoRegisters::whatIsBeingTypedIsNotOverwritten() {
    Bench bench;
    bench.pick("order");
    bench.type("mine");
    bench.set("order", {"theirs"});
    QCOMPARE(bench.edit()->toPlainText(), QString("mine"));
    bench.click("registerUndo");
    QCOMPARE(bench.edit()->toPlainText(), QString("theirs"));
}

void TestIoRegisters::anotherRegisterForgetsWhatWasTyped() {
    Bench bench;
    bench.pick("order");
    bench.type("mine");
    bench.pick("good_bad");
    QCOMPARE(bench.edit()->toPlainText(), QString("112\n3"));
    QVERIFY(!bench.find("registerSet")->isEnabled());
    bench.pick("order");
    QCOMPARE(bench.edit()->toPlainText(), QString("A-17\nbracket"));
}

void TestIoRegisters::oneIsFoundByItsName() {
    Bench bench;
    QTest::keyClicks(bench.find<QLineEdit>("findSignal"), "OR");
    QCOMPARE(bench.inTable(), QString("order=A-17, bracket operator="));
    QCOMPARE(bench.find<QLabel>("ioCount")->text(), QString("2 of 4"));
}

void TestIoRegisters::withoutRegistersItSaysWhereTheyComeFrom() {
    Bench bench;
    bench.robot.controller()->registers()->start({});
    bench.robot.settle();
    Frame::settle();
    QVERIFY(bench.empty()->isVisible());
    QVERIFY(bench.empty()->findChildren<QLabel*>().at(1)->text().contains("“registers”"));
}

void TestIoRegisters::withoutTheBusNothingCanBeChanged() {
    Bench bench;
    bench.pick("order");
    bench.setBus(false);
    QVERIFY(!bench.edit()->isEnabled());
    QVERIFY(bench.find<QLabel>("ioOffline")->isVisible());
    bench.setBus(true);
    QVERIFY(bench.edit()->isEnabled());
}

void TestIoRegisters::theHeadingsSpeakTheLanguage() {
    Bench bench;
    auto* application = static_cast<pendant::Application*>(qApp);
    QVERIFY(application->setLanguage("de"));
    Frame::settle();
    QCOMPARE(bench.table()->model()->headerData(1, Qt::Horizontal).toString(), QString("Werte"));
    QVERIFY(application->setLanguage("en"));
}

PENDANT_TEST_MAIN(TestIoRegisters)
#include "tst_io_registers.moc"
