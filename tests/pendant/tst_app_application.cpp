#include "framefixture.h"

#include "helm/basesettingpage.h"
#include "tour/press.h"

#include <QProxyStyle>
#include <QPushButton>
#include <QSignalSpy>
#include <QThread>
#include <QTimer>

#include <stdexcept>

using helm::standin::Message;
using helm::standin::MessageLevel;
using pendant::Application;

class TestApplication : public QObject {
    Q_OBJECT

private slots:
    void init() { helm::standin::MessageList::instance()->clear(); }
    void whatAnEventHandlerThrowsIsReportedUnderTheWidget();
    void whatAPluginsWidgetThrowsIsReportedUnderThePlugin();
    void whatAButtonThrowsThatTheTourPressesIsReported();
    void whatIsNoExceptionIsReportedToo();
    void whatATimerThrowsIsReported();
    void whatAnotherThreadThrowsIsReportedHere();
    void aWidgetThatDeletesItselfAndThrowsIsReported();
    void theLookOfTheApplicationIsTakenBack_data();
    void theLookOfTheApplicationIsTakenBack();
    void theCulpritIsNamedWhenItIsKnown();
    void changingTheThemeIsNoOnesFault();

private:
    static Application* app() { return static_cast<Application*>(qApp); }
    static const QList<Message>& messages() { return helm::standin::MessageList::instance()->messages(); }
};

void TestApplication::whatAnEventHandlerThrowsIsReportedUnderTheWidget() {
    QPushButton button;
    button.setObjectName("go");
    connect(&button, &QPushButton::clicked, [] { throw std::runtime_error("no wire"); });
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(messages().size(), 1);
    QCOMPARE(messages().last().level, MessageLevel::Error);
    QCOMPARE(messages().last().source, QString("QPushButton 'go'"));
    QVERIFY(messages().last().text.contains("QPushButton 'go'"));
    QVERIFY(messages().last().text.contains("no wire"));
}

void TestApplication::whatAPluginsWidgetThrowsIsReportedUnderThePlugin() {
    Frame frame;
    helm::BaseSettingPage page("kite", "Weld", nullptr, nullptr);
    page.bindMobj("brisk.kite.weld");
    auto* button = new QPushButton("Start", page.contentWgt());
    connect(button, &QPushButton::clicked, [] { throw std::runtime_error("no wire"); });
    frame.window->center()->addPage(&page, "kite.weld", page.wgt());
    frame.window->showPage("kite.weld");
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(messages().last().source, QString("weld"));
    QVERIFY(frame.window->isVisible());
}

void TestApplication::whatAButtonThrowsThatTheTourPressesIsReported() {
    QPushButton button;
    button.setObjectName("go");
    button.show();
    connect(&button, &QPushButton::clicked, [] { throw std::runtime_error("no wire"); });
    pendant::press(&button);
    QCOMPARE(messages().size(), 1);
    QCOMPARE(messages().last().source, QString("QPushButton 'go'"));
}

void TestApplication::whatIsNoExceptionIsReportedToo() {
    QPushButton button;
    connect(&button, &QPushButton::clicked, [] { throw 7; });
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(messages().size(), 1);
    QVERIFY(messages().last().text.contains("int"));
}

void TestApplication::whatATimerThrowsIsReported() {
    QTimer timer;
    timer.setObjectName("poll");
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, [] { throw std::runtime_error("late"); });
    timer.start(0);
    QTRY_COMPARE(messages().size(), 1);
    QVERIFY(messages().last().text.contains("QTimer 'poll'"));
}

void TestApplication::whatAnotherThreadThrowsIsReportedHere() {
    QThread thread;
    thread.start();
    QObject worker;
    worker.setObjectName("worker");
    worker.moveToThread(&thread);
    QThread* told = nullptr;
    const auto connection = connect(helm::standin::MessageList::instance(), &helm::standin::MessageList::added,
                                    [&] { told = QThread::currentThread(); });
    QMetaObject::invokeMethod(
        &worker, [] { throw std::runtime_error("in the thread"); }, Qt::QueuedConnection);
    QTRY_COMPARE(messages().size(), 1);
    QCOMPARE(told, QThread::currentThread());
    QVERIFY(messages().last().text.contains("in the thread"));
    disconnect(connection);
    thread.quit();
    thread.wait();
}

void TestApplication::aWidgetThatDeletesItselfAndThrowsIsReported() {
    auto* object = new QObject;
    QMetaObject::invokeMethod(
        object,
        [object] {
            delete object;
            throw std::runtime_error("gone");
        },
        Qt::QueuedConnection);
    QTRY_COMPARE(messages().size(), 1);
    QVERIFY(messages().last().text.contains("gone"));
}

void TestApplication::theLookOfTheApplicationIsTakenBack_data() {
    QTest::addColumn<QString>("call");
    for (const char* call : {"setStyleSheet", "setPalette", "setFont", "setStyle"})
        QTest::newRow(call) << call;
}

void TestApplication::theLookOfTheApplicationIsTakenBack() {
    QFETCH(QString, call);
    QWidget widget;
    widget.show();
    QTest::qWait(1);
    const QFont font = QApplication::font();
    const QPalette palette = QApplication::palette();
    const QByteArray style = QApplication::style()->metaObject()->className();
    if (call == "setStyleSheet")
        qApp->setStyleSheet("QWidget { background: red; }");
    else if (call == "setPalette")
        QApplication::setPalette(QPalette(Qt::red));
    else if (call == "setFont")
        QApplication::setFont(QFont("Courier", 30));
    else
        QApplication::setStyle(new QProxyStyle("Windows"));
    QTRY_COMPARE(messages().size(), 1);
    QVERIFY(messages().last().text.contains(call));
    QCOMPARE(qApp->styleSheet(), QString());
    QCOMPARE(QApplication::font(), font);
    QCOMPARE(QApplication::palette(), palette);
    QCOMPARE(QApplication::style()->metaObject()->className(), style.constData());
    QTest::qWait(5);
    QCOMPARE(messages().size(), 1);
}

void TestApplication::theCulpritIsNamedWhenItIsKnown() {
    QVERIFY(!app()->restoreLook("weld"));
    QVERIFY(messages().isEmpty());
    qApp->setStyleSheet("QWidget { background: red; }");
    QVERIFY(app()->restoreLook("weld"));
    QCOMPARE(messages().size(), 1);
    QCOMPARE(messages().last().source, QString("weld"));
    QTest::qWait(5);
    QCOMPARE(messages().size(), 1);
}

void TestApplication::changingTheThemeIsNoOnesFault() {
    QWidget widget;
    widget.show();
    app()->applyTheme(pendant::Theme::dark());
    QTest::qWait(5);
    QCOMPARE(QApplication::palette().color(QPalette::Window), pendant::Theme::dark().color("panel"));
    app()->applyTheme(pendant::Theme::light());
    QTest::qWait(5);
    QCOMPARE(messages().size(), 0);
}

PENDANT_TEST_MAIN(TestApplication)
#include "tst_app_application.moc"
