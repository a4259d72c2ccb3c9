#pragma once

#include "framefixture.h"

#include "frame/pagekeys.h"
#include "logs/logfixture.h"
#include "pages/logpage.h"
#include "pages/logview.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

const QString today("kite_20250314.log");

inline QByteArray manyLines(int count, int from = 0) {
    QByteArray lines;
    for (int i = from; i < from + count; ++i) {
        const QByteArray time = QTime(9, 0).addSecs(i).toString("HH:mm:ss.zzz").toLatin1();
        const char* tag = i % 10 == 0 ? "E" : i % 3 == 0 ? "S" : "I";
        lines += LogFixture::line(tag, time, (i % 2 ? "<weld>line " : "<feeder>line ") + QByteArray::number(i));
    }
    return lines;
}

using LogFiles = QList<QPair<QString, QByteArray>>;

/// The pendant's window with the log page in front, and files in its folder "log".
struct LogBench {
    explicit LogBench(const LogFiles& files = {{today, manyLines(500)}}) {
        QDir("log").removeRecursively();
        for (const auto& file : files)
            write(file.first, file.second);
        frame.window->showPage(pendant::pagekeys::log());
        Frame::settle();
    }
    ~LogBench() { QDir("log").removeRecursively(); }

    static void write(const QString& name, const QByteArray& bytes, QIODevice::OpenMode mode = QIODevice::WriteOnly) {
        QDir().mkpath(QFileInfo("log/" + name).path());
        QFile file("log/" + name);
        QVERIFY(file.open(mode | QIODevice::Unbuffered));
        file.write(bytes);
    }
    static void append(const QString& name, const QByteArray& bytes) {
        write(name, bytes, QIODevice::WriteOnly | QIODevice::Append);
    }

    pendant::LogPage* page() const { return frame.find<pendant::LogPage>("logPage"); }
    pendant::LogView* view() const { return frame.find<pendant::LogView>("logView"); }
    QString state() const { return frame.find<QLabel>("logState")->text(); }
    QWidget* empty() const { return page()->findChild<QWidget*>("emptyState"); }

    /// What stands on the screen, without what stands before it in each line.
    QStringList shown() const {
        QStringList texts;
        for (const pendant::LogPlace& row : view()->shownRows())
            texts << pendant::parseLogLine(page()->text().row(row)).text;
        return texts;
    }
    QString lowest() const { return shown().isEmpty() ? QString() : shown().last(); }
    QString highest() const { return shown().value(0); }

    void press(Qt::Key key) const { QTest::keyClick(view(), key); }
    void pressRow(int index) const {
        const int y = index * pendant::LogRowPainter::rowHeight + pendant::LogRowPainter::rowHeight / 2;
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, QPoint(200, y));
    }
    /// Chooses an entry of a list as a finger does.
    void choose(const QString& combo, const QString& text) const {
        auto* list = frame.find<QComboBox>(combo);
        list->setFocus();
        list->showPopup();
        const int index = list->findText(text);
        QVERIFY2(index >= 0, qPrintable(text));
        const QModelIndex row = list->model()->index(index, 0);
        list->view()->scrollTo(row);
        QTest::mouseClick(list->view()->viewport(), Qt::LeftButton, {}, list->view()->visualRect(row).center());
        QTRY_COMPARE(list->currentText(), text);
    }
    void type(const QString& field, const QString& text) const {
        auto* edit = frame.find<QLineEdit>(field);
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    void finishSearch() const { QTRY_VERIFY(!page()->search().isRunning()); }

    Frame frame;
};
