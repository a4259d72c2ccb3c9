#include "closegrippereditor.h"
#include "opengrippereditor.h"

#include "pendanttest/logwatch.h"

#include <kite/vexbasewidget.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <memory>

namespace {

/// An editor in a window with a key that inserts, as in the program editor. All that is done is what fingers can do:
/// the window is tapped somewhere, and keys go to whatever has the focus then.
class Touched {
public:
    explicit Touched(GripperEditor* editor) {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(wrapper = new kite::VexBaseWidget(editor, nullptr));
        column->addWidget(insert = new QPushButton("Insert"));
        QObject::connect(insert, &QPushButton::clicked, wrapper, [this] {
            accepted = wrapper->CheckInsert();
            line = wrapper->ToString();
        });
        window.resize(400, 600);
        window.show();
        isReady = QTest::qWaitForWindowActive(&window);
        insert->setFocus();
    }

    /// \param x from the left of the widget, in tenths of its width
    void tap(QWidget* widget, int x = 5) {
        const QPoint point(widget->width() * x / 10, widget->height() / 2);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&window, point));
    }
    void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    void empty(const QWidget* field) {
        tap(field->findChild<QLineEdit*>());
        key(Qt::Key_End);
        for (int i = 0; i < 8; ++i)
            key(Qt::Key_Backspace);
    }

    QDoubleSpinBox* value() { return wrapper->findChild<QDoubleSpinBox*>("value"); }
    QSpinBox* wait() { return wrapper->findChild<QSpinBox*>("wait"); }
    QLineEdit* comment() { return wrapper->findChild<QLineEdit*>("comment"); }
    QString reason() { return wrapper->findChild<QLabel*>("reason")->text(); }

    QWidget window;
    kite::VexBaseWidget* wrapper;
    QPushButton* insert;
    bool isReady;
    bool accepted = false;
    QString line;
};

} // namespace

class TestGripperTouch : public QObject {
    Q_OBJECT

private slots:
    void init() { m_log.reset(new pendanttest::LogWatch); }
    void cleanup() { m_log.reset(); }
    void tapsAndDigitsFillALineIn_data() { tenths(); }
    void tapsAndDigitsFillALineIn();
    void anEmptyWaitTakesDigits_data() { tenths(); }
    void anEmptyWaitTakesDigits();
    void anEmptiedValueIsNotSetWhenInsertIsPressed();
    void anEmptiedWaitIsNoWaitWhenInsertIsPressed();
    void whatIsNoNumberIsNotSet_data();
    void whatIsNoNumberIsNotSet();
    void digitsTakeTheReasonAway();

private:
    static void tenths() {
        QTest::addColumn<int>("tenth");
        for (const int tenth : {0, 1, 5, 9})
            QTest::addRow("%d tenths from the left", tenth) << tenth;
    }

    std::unique_ptr<pendanttest::LogWatch> m_log;
};

void TestGripperTouch::tapsAndDigitsFillALineIn() {
    QFETCH(int, tenth);
    Touched touched(new OpenGripperEditor);
    QVERIFY(touched.isReady);
    touched.tap(touched.value()->findChild<QLineEdit*>(), tenth);
    touched.type("62.5");
    touched.tap(touched.comment(), tenth);
    touched.type("wide");
    touched.tap(touched.insert);
    QVERIFY2(touched.accepted, qPrintable(touched.reason()));
    QCOMPARE(touched.line, QString("OpenGripper width=62.5mm wait=200ms // wide"));
}

void TestGripperTouch::anEmptyWaitTakesDigits() {
    QFETCH(int, tenth);
    Touched touched(new CloseGripperEditor);
    touched.wrapper->FillWith("CloseGripper force=40N wait=0ms");
    touched.tap(touched.wait()->findChild<QLineEdit*>(), tenth);
    touched.type("750");
    touched.tap(touched.insert);
    QCOMPARE(touched.line, QString("CloseGripper force=40N wait=750ms"));
}

void TestGripperTouch::anEmptiedValueIsNotSetWhenInsertIsPressed() {
    Touched touched(new CloseGripperEditor);
    touched.tap(touched.value()->findChild<QLineEdit*>());
    touched.type("40");
    touched.tap(touched.insert);
    QVERIFY(touched.accepted);
    touched.empty(touched.value());
    touched.tap(touched.insert);
    QVERIFY(!touched.accepted);
    QCOMPARE(touched.line, QString("CloseGripper force=?N wait=200ms"));
    QVERIFY(!touched.reason().isEmpty());
    QCOMPARE(touched.value()->text(), QString());
}

void TestGripperTouch::anEmptiedWaitIsNoWaitWhenInsertIsPressed() {
    Touched touched(new CloseGripperEditor);
    touched.value()->setValue(40);
    touched.empty(touched.wait());
    touched.tap(touched.insert);
    QVERIFY(touched.accepted);
    QCOMPARE(touched.line, QString("CloseGripper force=40N wait=0ms"));
    QCOMPARE(touched.wait()->text(), QString());
}

void TestGripperTouch::whatIsNoNumberIsNotSet_data() {
    QTest::addColumn<QString>("typed");
    for (const char* typed : {".", "+", "-", "N", " ", "0", "0."})
        QTest::newRow(typed) << QString(typed);
}

// While it is typed as well as when the field has been left.
void TestGripperTouch::whatIsNoNumberIsNotSet() {
    QFETCH(QString, typed);
    Touched touched(new CloseGripperEditor);
    touched.value()->setValue(40);
    touched.empty(touched.value());
    touched.type(typed);
    QVERIFY(!touched.wrapper->CheckInsert());
    QCOMPARE(touched.wrapper->ToString(), QString("CloseGripper force=?N wait=200ms"));
    touched.tap(touched.insert);
    QVERIFY(!touched.accepted);
    QCOMPARE(touched.line, QString("CloseGripper force=?N wait=200ms"));
    QCOMPARE(touched.value()->text(), QString());
}

void TestGripperTouch::digitsTakeTheReasonAway() {
    Touched touched(new CloseGripperEditor);
    touched.tap(touched.insert);
    QVERIFY(!touched.accepted);
    touched.tap(touched.comment());
    touched.type("softly");
    QVERIFY(!touched.reason().isEmpty());
    touched.tap(touched.value()->findChild<QLineEdit*>());
    touched.type("0");
    QVERIFY(!touched.reason().isEmpty());
    touched.type(".9");
    QVERIFY(!touched.reason().isEmpty());
    touched.key(Qt::Key_Backspace);
    touched.key(Qt::Key_Backspace);
    touched.key(Qt::Key_Backspace);
    touched.type("5");
    QCOMPARE(touched.reason(), QString());
}

QTEST_MAIN(TestGripperTouch)
#include "tst_grippertouch.moc"
