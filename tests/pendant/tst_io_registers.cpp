#include "iofixture.h"

#include "state/registers.h"
#include "state/statekeys.h"

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
    void whatChangedMeanwhileIsTold();
    void valuesWithALineBreakAreLocked_data();
    void valuesWithALineBreakAreLocked();
    void oneEmptyValueIsNotNone();
    void spacesThatDoNotBreakAreKept();
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
            if (index.data().toString() != name)
                continue;
            table()->scrollTo(index);
            QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, table()->visualRect(index).center());
        }
        Frame::settle();
    }
    QPlainTextEdit* edit() const { return find<QPlainTextEdit>("registerValues"); }
    QString note() const { return find<QLabel>("registerNote")->text(); }
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

// As the data tree has them.
QStringList valuesInTree(const QString& name) {
    for (brisk::ModuleObject* record : m(pendant::statekeys::registers())->cmobjs()) {
        if (pendant::registers::nameOf(record) == name)
            return pendant::registers::valuesOf(record);
    }
    return QStringList("no register");
}

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

void TestIoRegisters::whatChangedMeanwhileIsTold() {
    Bench bench;
    bench.pick("order");
    bench.type("mine");
    QCOMPARE(bench.note(), QString());
    bench.set("order", {"theirs", "too"});
    QCOMPARE(bench.note(), QString("“Set” overwrites what came meanwhile: theirs, too"));
    bench.set("order", {"A-17", "bracket"});
    QCOMPARE(bench.note(), QString());
    bench.set("order", {"theirs"});
    bench.click("registerSet");
    QCOMPARE(bench.note(), QString());
    QVERIFY(bench.inController().contains(R"({"name":"order","value":["mine"]})"));
}

void TestIoRegisters::valuesWithALineBreakAreLocked_data() {
    QTest::addColumn<QString>("value");
    QTest::newRow("line feed") << QString("a\nb");
    QTest::newRow("carriage return") << QString("a\rb");
    QTest::newRow("both") << QString("a\r\nb");
    QTest::newRow("paragraph") << QString("a") + QChar(0x2029) + "b";
    QTest::newRow("line") << QString("a") + QChar(0x2028) + "b";
    QTest::newRow("nothing else") << QString("\n");
}

void TestIoRegisters::valuesWithALineBreakAreLocked() {
    QFETCH(QString, value);
    Bench bench;
    bench.set("order", {"x", value});
    bench.pick("order");
    QVERIFY(bench.edit()->isReadOnly());
    QVERIFY(bench.note().contains("line break"));
    bench.type("mine");
    QVERIFY(!bench.find("registerSet")->isEnabled());
    bench.set("order", {"x"});
    QVERIFY(!bench.edit()->isReadOnly());
    QCOMPARE(bench.note(), QString());
}

void TestIoRegisters::oneEmptyValueIsNotNone() {
    Bench bench;
    bench.pick("operator");
    QCOMPARE(bench.edit()->placeholderText(), QString("One value, an empty one"));
    QVERIFY(!bench.edit()->isReadOnly());
    bench.pick("alarms");
    QCOMPARE(bench.edit()->placeholderText(), QString("No value"));
    bench.pick("operator");
    bench.type("x");
    QTest::keyClick(bench.edit(), Qt::Key_Backspace);
    QCOMPARE(bench.edit()->placeholderText(), QString("No value"));
    bench.click("registerSet");
    QVERIFY(bench.inController().contains(R"({"name":"operator","value":[]})"));
}

void TestIoRegisters::spacesThatDoNotBreakAreKept() {
    Bench bench;
    const QString wide = QString("1") + QChar(QChar::Nbsp) + "000";
    bench.set("order", {wide});
    bench.pick("order");
    QVERIFY(!bench.edit()->isReadOnly());
    bench.edit()->moveCursor(QTextCursor::End);
    QTest::keyClicks(bench.edit(), "!");
    bench.click("registerSet");
    QCOMPARE(valuesInTree("order"), QStringList(wide + '!'));
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
