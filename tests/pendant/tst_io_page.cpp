#include "iofixture.h"

#include "frame/statusitem.h"

#include <QSignalSpy>

// The page that shows, switches and forces the signals.
class TestIoPage : public QObject {
    Q_OBJECT

private slots:
    void theInputsStandUnderTheirTypes();
    void theOutputsStandUnderTheirTypes();
    void aValueIsInWordsOrInNumbers();
    void theValuesAreLive();
    void whatIsNotSelectedIsNotSwitched();
    void anOutputIsSwitched();
    void anOutputIsSetToANumber();
    void anInputIsForcedAndReleased();
    void anInputIsForcedToANumber();
    void aNumberThatIsBeingTypedIsNotOverwritten();
    void aForcedInputIsMarkedWithWordAndIcon();
    void forcedInputsAreToldWhereverTheyAre();
    void allAreReleasedAtOnceWhenThatIsMeant();
    void allStayForcedWhenThatIsNotMeant();
    void theFrameTellsOfForcedInputsOnEveryPage();
    void whatIsRefusedStaysInTheFieldUntilItIsUndone();
    void aStateThatIsAwaitedIsTold();
    void oneIsFoundByItsName();
    void theSelectionSurvivesTheFilter();
    void aHeadingIsNotSelected();
    void withoutSignalsItSaysWhereTheyComeFrom();
    void withoutTheBusNothingCanBeSwitched();
    void withoutTheBusAndWithoutSignalsItSaysWhatToDo();
    void aSignalThatGoesLeavesNoDetails();
    void whatTheControllerRefusesIsAMessage();
    void aHiddenPageReadsNothing();
    void hundredsAreReadOnceForManyChanges();
    void everythingCanBeTouched();
    void nothingIsCutBesideTheSideBar_data();
    void nothingIsCutBesideTheSideBar();
};

namespace {

pendant::IoSignalsModel* modelOf(const IoBench& bench) {
    return static_cast<pendant::IoSignalsModel*>(bench.list()->model());
}

} // namespace

void TestIoPage::theInputsStandUnderTheirTypes() {
    const IoBench bench;
    QCOMPARE(bench.rows(), QString("[Digital inputs 4] part_present door_closed start_button pressure_ok "
                                   "[Group inputs 1] part_code [Analogue inputs 2] grip_force distance"));
    QCOMPARE(bench.find<QLabel>("ioCount")->text(), QString("7"));
}

void TestIoPage::theOutputsStandUnderTheirTypes() {
    IoBench bench;
    bench.click("ioOutputs");
    QCOMPARE(bench.rows(), QString("[Digital outputs 3] gripper lamp conveyor_run [Group outputs 1] job_number "
                                   "[Analogue outputs 1] belt_speed"));
    bench.click("ioInputs");
    QVERIFY(bench.rows().startsWith("[Digital inputs 4]"));
}

void TestIoPage::aValueIsInWordsOrInNumbers() {
    const IoBench bench;
    QCOMPARE(bench.value("door_closed"), QString("On"));
    QCOMPARE(bench.value("start_button"), QString("Off"));
    QCOMPARE(bench.value("part_code"), QString("17"));
    QCOMPARE(bench.value("distance"), QString("42.500"));
    QCOMPARE(bench.indexOf("distance").data(Qt::AccessibleTextRole).toString(), QString("distance: 42.500"));
    QVERIFY(!bench.indexOf("distance").data(pendant::IoSignalsModel::OnRole).isValid());
}

void TestIoPage::theValuesAreLive() {
    IoBench bench;
    bench.write("start_button", true);
    QCOMPARE(bench.value("start_button"), QString("On"));
    bench.robot.step(5000);
    Frame::settle();
    QCOMPARE(bench.value("part_code"), QString("18"));
}

void TestIoPage::whatIsNotSelectedIsNotSwitched() {
    IoBench bench;
    bench.click("ioOutputs");
    for (const char* name : {"ioOn", "ioOff", "ioSet", "ioRelease"})
        QVERIFY2(!bench.find(name)->isVisible(), name);
    QVERIFY(bench.find<QLabel>("ioHint")->isVisible());
}

void TestIoPage::anOutputIsSwitched() {
    IoBench bench;
    bench.click("ioOutputs");
    bench.select("lamp");
    QCOMPARE(bench.find<QLabel>("ioName")->text(), QString("lamp"));
    QVERIFY(!bench.find("ioRelease")->isVisible());
    bench.click("ioOn");
    QCOMPARE(bench.signalTable()->value("lamp"), QVariant(true));
    QCOMPARE(bench.value("lamp"), QString("On"));
    bench.click("ioOff");
    QCOMPARE(bench.signalTable()->value("lamp"), QVariant(false));
    QCOMPARE(bench.signalTable()->value("gripper"), QVariant(false));
}

void TestIoPage::anOutputIsSetToANumber() {
    IoBench bench;
    bench.click("ioOutputs");
    bench.select("job_number");
    QCOMPARE(bench.find<QDoubleSpinBox>("ioNumber")->text(), QString("3"));
    QVERIFY(!bench.find("ioOn")->isVisible());
    bench.find<QDoubleSpinBox>("ioNumber")->setValue(12);
    bench.click("ioSet");
    QCOMPARE(bench.signalTable()->value("job_number"), QVariant(12));
    bench.select("belt_speed");
    QCOMPARE(bench.find<QDoubleSpinBox>("ioNumber")->text(), QString("2.500"));
    bench.find<QDoubleSpinBox>("ioNumber")->setFocus();
    QTest::keyClick(bench.find<QDoubleSpinBox>("ioNumber"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(bench.find<QDoubleSpinBox>("ioNumber"), "7.25");
    bench.click("ioSet");
    QCOMPARE(bench.signalTable()->value("belt_speed"), QVariant(7.25));
    QCOMPARE(bench.value("belt_speed"), QString("7.250"));
}

void TestIoPage::anInputIsForcedAndReleased() {
    IoBench bench;
    bench.select("door_closed");
    QCOMPARE(bench.find("ioOff")->text(), QString("Force off"));
    QVERIFY(!bench.find("ioRelease")->isEnabled());
    bench.click("ioOff");
    QCOMPARE(bench.signalTable()->value("door_closed"), QVariant(false));
    QVERIFY(bench.isForced("door_closed"));
    QVERIFY(!bench.isForced("pressure_ok"));
    bench.click("ioRelease");
    QCOMPARE(bench.signalTable()->value("door_closed"), QVariant(true));
    QVERIFY(!bench.isForced("door_closed"));
    QVERIFY(!bench.find("ioRelease")->isEnabled());
}

void TestIoPage::anInputIsForcedToANumber() {
    IoBench bench;
    bench.select("distance");
    QCOMPARE(bench.find<QDoubleSpinBox>("ioNumber")->maximum(), 500.0);
    bench.find<QDoubleSpinBox>("ioNumber")->setValue(123.5);
    bench.click("ioSet");
    QCOMPARE(bench.signalTable()->value("distance"), QVariant(123.5));
    QVERIFY(bench.isForced("distance"));
    bench.click("ioRelease");
    QCOMPARE(bench.find<QDoubleSpinBox>("ioNumber")->value(), 42.5);
}

void TestIoPage::aNumberThatIsBeingTypedIsNotOverwritten() {
    IoBench bench;
    bench.select("distance");
    auto* number = bench.find<QDoubleSpinBox>("ioNumber");
    bench.write("distance", 50);
    QCOMPARE(number->value(), 50.0);
    number->stepUp();
    const double typed = number->value();
    bench.write("distance", 60);
    QCOMPARE(number->value(), typed);
    bench.select("grip_force");
    bench.select("distance");
    QCOMPARE(number->value(), 60.0);
}

void TestIoPage::aForcedInputIsMarkedWithWordAndIcon() {
    IoBench bench;
    const QImage before =
        bench.list()->viewport()->grab(bench.list()->visualRect(bench.indexOf("pressure_ok"))).toImage();
    QCOMPARE(bench.signalTable()->force("pressure_ok", true), QString());
    bench.robot.settle();
    Frame::settle();
    // The value is the same as before; what is new is the mark.
    QCOMPARE(bench.value("pressure_ok"), QString("On"));
    const QImage after =
        bench.list()->viewport()->grab(bench.list()->visualRect(bench.indexOf("pressure_ok"))).toImage();
    QCOMPARE(before.size(), after.size());
    QVERIFY(before != after);
}

void TestIoPage::forcedInputsAreToldWhereverTheyAre() {
    IoBench bench;
    QVERIFY(!bench.find<QLabel>("ioForced")->isVisible());
    bench.select("door_closed");
    bench.click("ioOff");
    bench.click("ioOutputs");
    QVERIFY(bench.find<QLabel>("ioForced")->isVisible());
    QCOMPARE(bench.find<QLabel>("ioForced")->text(), QString("1 forced"));
    bench.click("ioRegistersPart");
    QVERIFY(bench.find<QLabel>("ioForced")->isVisible());
}

void TestIoPage::allAreReleasedAtOnceWhenThatIsMeant() {
    IoBench bench;
    for (const char* name : {"door_closed", "start_button"})
        QCOMPARE(bench.signalTable()->force(name, true), QString());
    bench.robot.settle();
    Frame::settle();
    QCOMPARE(bench.find<QLabel>("ioForced")->text(), QString("2 forced"));
    bench.click("ioReleaseAll");
    QCOMPARE(bench.find("ioReleaseNow")->text(), QString("Release 2"));
    QVERIFY(bench.signalTable()->value("start_button").toBool());
    bench.click("ioReleaseNow");
    for (const char* name : {"ioForced", "ioReleaseAll", "ioReleaseNow", "ioKeepForced"})
        QVERIFY2(!bench.find<QWidget>(name)->isVisible(), name);
    QCOMPARE(bench.signalTable()->value("start_button"), QVariant(false));
}

void TestIoPage::allStayForcedWhenThatIsNotMeant() {
    IoBench bench;
    bench.select("start_button");
    bench.click("ioOn");
    bench.click("ioReleaseAll");
    bench.click("ioKeepForced");
    QVERIFY(bench.isForced("start_button"));
    QVERIFY(bench.find("ioReleaseAll")->isVisible() && !bench.find("ioReleaseNow")->isVisible());
    // Whoever comes back is asked again.
    bench.click("ioReleaseAll");
    bench.frame.window->showPage(pendant::pagekeys::start());
    bench.frame.window->showPage(pendant::pagekeys::io());
    QVERIFY(bench.find("ioReleaseAll")->isVisible() && !bench.find("ioReleaseNow")->isVisible());
}

void TestIoPage::theFrameTellsOfForcedInputsOnEveryPage() {
    IoBench bench;
    auto* item = bench.frame.find<pendant::StatusItem>("status:forced");
    QVERIFY(!item->isVisible());
    bench.frame.window->showPage(pendant::pagekeys::start());
    for (const char* name : {"door_closed", "start_button"})
        QCOMPARE(bench.signalTable()->force(name, true), QString());
    bench.robot.settle();
    Frame::settle();
    QVERIFY(item->isVisible());
    QCOMPARE(item->accessibleName(), QString("Forced: 2"));
    QCOMPARE(item->state(), pendant::StatusItem::State::Warning);
    for (const char* name : {"door_closed", "start_button"})
        QCOMPARE(bench.signalTable()->release(name), QString());
    bench.robot.settle();
    Frame::settle();
    QVERIFY(!item->isVisible());
}

void TestIoPage::whatIsRefusedStaysInTheFieldUntilItIsUndone() {
    IoBench bench;
    bench.click("ioOutputs");
    bench.select("job_number");
    auto* number = bench.find<QDoubleSpinBox>("ioNumber");
    QVERIFY(!bench.find("ioUndo")->isEnabled());
    // The page still shows it.
    bench.signalTable()->blockSignals(true);
    bench.signalTable()->start({});
    bench.signalTable()->blockSignals(false);
    number->setValue(12);
    bench.click("ioSet");
    QCOMPARE(Frame::messages().last().text, QString("The controller has no signal \"job_number\"."));
    m("orca.robot.io.signal_value.lamp")->setValue(nullptr, true);
    Frame::settle();
    QCOMPARE(number->value(), 12.0);
    bench.click("ioUndo");
    QCOMPARE(number->value(), 3.0);
    QVERIFY(!bench.find("ioUndo")->isEnabled());
}

void TestIoPage::aStateThatIsAwaitedIsTold() {
    IoBench bench;
    bench.setBus(false);
    bench.robot.embedded()->bus()->setFault(controller::Fault::Null);
    bench.setBus(true);
    QVERIFY(bench.find<QLabel>("ioOffline")->isVisible());
    QVERIFY(bench.find<QLabel>("ioOffline")->text().contains("not yet told"));
    bench.robot.embedded()->bus()->setFault(controller::Fault::None);
    QTRY_VERIFY(!bench.find<QLabel>("ioOffline")->isVisible());
}

void TestIoPage::oneIsFoundByItsName() {
    IoBench bench;
    QTest::keyClicks(bench.find<QLineEdit>("findSignal"), "PART");
    QCOMPARE(bench.rows(), QString("[Digital inputs 1] part_present [Group inputs 1] part_code"));
    QCOMPARE(bench.find<QLabel>("ioCount")->text(), QString("2 of 7"));
    bench.find<QLineEdit>("findSignal")->setText("nobody");
    QVERIFY(bench.empty()->isVisible() && !bench.list()->isVisible());
    QVERIFY(bench.find<QLineEdit>("findSignal")->isEnabled());
    bench.find<QLineEdit>("findSignal")->clear();
    QVERIFY(!bench.empty()->isVisible() && bench.list()->isVisible());
}

void TestIoPage::theSelectionSurvivesTheFilter() {
    IoBench bench;
    bench.select("distance");
    bench.find<QLineEdit>("findSignal")->setText("dist");
    QCOMPARE(bench.list()->currentIndex().data().toString(), QString("distance"));
    bench.find<QLineEdit>("findSignal")->setText("door");
    QVERIFY(!bench.find<QLabel>("ioName")->isVisible());
    bench.find<QLineEdit>("findSignal")->clear();
    QCOMPARE(bench.list()->currentIndex().data().toString(), QString("distance"));
    QCOMPARE(bench.find<QLabel>("ioName")->text(), QString("distance"));
}

void TestIoPage::aHeadingIsNotSelected() {
    IoBench bench;
    QTest::mouseClick(bench.list()->viewport(), Qt::LeftButton, {},
                      bench.list()->visualRect(bench.list()->model()->index(0, 0)).center());
    QVERIFY(bench.list()->selectionModel()->selectedIndexes().isEmpty());
    QVERIFY(!bench.find<QLabel>("ioName")->isVisible());
}

void TestIoPage::withoutSignalsItSaysWhereTheyComeFrom() {
    IoBench bench;
    bench.signalTable()->start({});
    bench.robot.settle();
    Frame::settle();
    QVERIFY(bench.empty()->isVisible());
    QVERIFY(bench.empty()->findChildren<QLabel*>().at(1)->text().contains("“signals”"));
    QVERIFY(!bench.find<QLineEdit>("findSignal")->isEnabled());
}

void TestIoPage::withoutTheBusNothingCanBeSwitched() {
    IoBench bench;
    bench.select("door_closed");
    bench.click("ioOff");
    bench.setBus(false);
    QVERIFY(bench.find<QLabel>("ioOffline")->isVisible());
    QVERIFY(bench.find<QLabel>("ioOffline")->text().contains("F12"));
    QCOMPARE(bench.value("door_closed"), QString("Off"));
    for (const char* name : {"ioOn", "ioOff", "ioRelease", "ioReleaseAll"})
        QVERIFY2(bench.find(name)->isVisible() && !bench.find(name)->isEnabled(), name);
    bench.setBus(true);
    QVERIFY(!bench.find<QLabel>("ioOffline")->isVisible());
    for (const char* name : {"ioOn", "ioOff", "ioRelease", "ioReleaseAll"})
        QVERIFY2(bench.find(name)->isEnabled(), name);
}

void TestIoPage::withoutTheBusAndWithoutSignalsItSaysWhatToDo() {
    IoBench bench;
    bench.setBus(false);
    m("orca.robot")->clear(nullptr, true, true);
    Frame::settle();
    QVERIFY(bench.empty()->isVisible());
    QVERIFY(bench.empty()->findChildren<QLabel*>().at(1)->text().contains("F12"));
    QVERIFY(!bench.find<QLabel>("ioOffline")->isVisible());
    bench.setBus(true);
    QVERIFY(bench.list()->isVisible());
}

void TestIoPage::aSignalThatGoesLeavesNoDetails() {
    IoBench bench;
    bench.select("distance");
    bench.signalTable()->start({{"only", controller::SignalType::DigitalInput, false, 0, 0, nullptr}});
    bench.robot.settle();
    Frame::settle();
    QCOMPARE(bench.rows(), QString("[Digital inputs 1] only"));
    QVERIFY(!bench.find<QLabel>("ioName")->isVisible());
    QVERIFY(bench.find<QLabel>("ioHint")->isVisible());
}

void TestIoPage::whatTheControllerRefusesIsAMessage() {
    IoBench bench;
    bench.click("ioOutputs");
    bench.select("lamp");
    // The page still shows it.
    bench.signalTable()->blockSignals(true);
    bench.signalTable()->start({});
    bench.signalTable()->blockSignals(false);
    bench.click("ioOn");
    QCOMPARE(Frame::messages().last().text, QString("The controller has no signal \"lamp\"."));
}

void TestIoPage::aHiddenPageReadsNothing() {
    IoBench bench;
    bench.frame.window->showPage(pendant::pagekeys::start());
    QSignalSpy read(modelOf(bench), &pendant::IoSignalsModel::refreshed);
    bench.write("start_button", true);
    QVERIFY(read.isEmpty());
    bench.frame.window->showPage(pendant::pagekeys::io());
    QCOMPARE(bench.value("start_button"), QString("On"));
}

void TestIoPage::hundredsAreReadOnceForManyChanges() {
    IoBench bench;
    QVector<controller::IoSignal> many;
    for (int i = 0; i < 800; ++i)
        many.append({QString("in%1").arg(i), controller::SignalType::DigitalInput, false, 0, 0, nullptr});
    bench.signalTable()->start(many);
    bench.robot.settle();
    Frame::settle();
    QCOMPARE(bench.list()->model()->rowCount(), 801);
    QSignalSpy read(modelOf(bench), &pendant::IoSignalsModel::refreshed);
    QSignalSpy anew(modelOf(bench), &pendant::IoSignalsModel::modelReset);
    for (brisk::ModuleObject* value : m("orca.robot.io.signal_value")->cmobjs())
        value->setValue(nullptr, true);
    Frame::settle();
    QCOMPARE(read.size(), 1);
    QVERIFY(anew.isEmpty());
    QCOMPARE(bench.value("in799"), QString("On"));
    bench.select("in799");
    QCOMPARE(bench.find<QLabel>("ioName")->text(), QString("in799"));
}

void TestIoPage::everythingCanBeTouched() {
    IoBench bench;
    bench.select("door_closed");
    bench.click("ioOff");
    for (const QPushButton* button : bench.page()->findChildren<QPushButton*>()) {
        if (button->isVisible())
            QVERIFY2(button->height() >= 56 && button->width() >= 56, qPrintable(button->objectName()));
    }
    QVERIFY(bench.list()->visualRect(bench.indexOf("door_closed")).height() >= 56);
}

void TestIoPage::nothingIsCutBesideTheSideBar_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"en", "de", "zh_CN"})
        QTest::newRow(language) << language;
}

void TestIoPage::nothingIsCutBesideTheSideBar() {
    QFETCH(QString, language);
    auto* application = static_cast<pendant::Application*>(qApp);
    QVERIFY(application->setLanguage(language));
    IoBench bench;
    bench.frame.find("sideBar")->show();
    QTRY_VERIFY(bench.page()->width() <= 680);
    for (const char* signal : {"door_closed", "distance"}) {
        bench.select(signal);
        bench.click(bench.find("ioOff")->isVisible() ? "ioOff" : "ioSet");
        for (const QPushButton* button : bench.page()->findChildren<QPushButton*>()) {
            if (button->isVisible())
                QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->objectName()));
        }
        QVERIFY(bench.find<QLabel>("ioName")->width() >= 80);
        QVERIFY(bench.page()->rect().contains(
            bench.list()->geometry().translated(bench.list()->parentWidget()->mapTo(bench.page(), QPoint()))));
    }
    QVERIFY(application->setLanguage("en"));
}

PENDANT_TEST_MAIN(TestIoPage)
#include "tst_io_page.moc"
