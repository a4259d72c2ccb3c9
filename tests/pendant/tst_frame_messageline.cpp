#include "framefixture.h"

#include "frame/pagekeys.h"

#include <QLabel>
#include <QPushButton>

using helm::standin::MessageLevel;
using helm::standin::MessageList;

class TestMessageLine : public QObject {
    Q_OBJECT

private slots:
    void saysThatThereIsNothing();
    void showsTheNewestWithLevelAndPlugin();
    void aMessageOfSeveralLinesStaysOneLine();
    void aLongMessageDoesNotWidenTheWindow();
    void goesBackToNothingWhenTheListIsCleared();
    void aPressOpensTheListAndTheNextGoesBack();

private:
    static QString textOf(const Frame& frame) { return frame.find<QLabel>("messageText")->text(); }
};

void TestMessageLine::saysThatThereIsNothing() {
    Frame frame;
    QCOMPARE(textOf(frame), QString("No messages"));
}

void TestMessageLine::showsTheNewestWithLevelAndPlugin() {
    Frame frame;
    MessageList::instance()->add(MessageLevel::Error, "weld", "No gas.");
    MessageList::instance()->add(MessageLevel::Warning, "feeder", "Wire runs out.");
    QCOMPARE(textOf(frame), QString("Wire runs out."));
    QCOMPARE(frame.find("messageLine")->accessibleName(), QString("Warning, feeder: Wire runs out."));
    QStringList words;
    for (const QLabel* label : frame.find("messageLine")->findChildren<QLabel*>())
        words << label->text();
    QVERIFY(words.contains("Warning"));
    QVERIFY(words.contains("feeder"));
    QVERIFY(words.contains("Messages: 2"));
}

void TestMessageLine::aMessageOfSeveralLinesStaysOneLine() {
    Frame frame;
    MessageList::instance()->add(MessageLevel::Information, "weld", "first\nsecond\n\nthird");
    QCOMPARE(textOf(frame), QString("first second third"));
}

void TestMessageLine::aLongMessageDoesNotWidenTheWindow() {
    Frame frame;
    MessageList::instance()->add(MessageLevel::Information, "weld", QString(2000, 'x'));
    Frame::settle();
    QCOMPARE(frame.window->size(), QSize(1280, 800));
    QCOMPARE(frame.find("messageLine")->height(), 56);
    QVERIFY(frame.find("messageLine")->geometry().right() < 1280 - 88);
}

void TestMessageLine::goesBackToNothingWhenTheListIsCleared() {
    Frame frame;
    MessageList::instance()->add(MessageLevel::Information, "weld", "Ready.");
    MessageList::instance()->clear();
    QCOMPARE(textOf(frame), QString("No messages"));
}

void TestMessageLine::aPressOpensTheListAndTheNextGoesBack() {
    Frame frame;
    frame.window->showPage(pendant::pagekeys::settings());
    Frame::click(frame.find("messageLine"));
    QCOMPARE(frame.window->center()->current(), pendant::pagekeys::messages());
    Frame::click(frame.find("messageLine"));
    QCOMPARE(frame.window->center()->current(), pendant::pagekeys::settings());
}

PENDANT_TEST_MAIN(TestMessageLine)
#include "tst_frame_messageline.moc"
