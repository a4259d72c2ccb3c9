#include "tour/press.h"
#include "tour/tourbuttons.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using pendant::Appeared;

class TestPress : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_page.reset(new QWidget);
        m_layout = new QVBoxLayout(m_page.get());
        m_button = addButton("Go");
        m_page->show();
    }

    void cleanup() {
        m_page.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void theTourPressesWhatItsAuthorMarksAndFullScreen_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVariant>("mark");
        QTest::addColumn<bool>("pressed");
        QTest::newRow("any button") << "Start"
                                    << "start" << QVariant() << false;
        QTest::newRow("marked") << "Start"
                                << "start" << QVariant("press") << true;
        QTest::newRow("marked otherwise") << "Start"
                                          << "start" << QVariant("skip") << false;
        QTest::newRow("text of full screen") << "Full screen"
                                             << "" << QVariant() << true;
        QTest::newRow("with a mnemonic") << "Full &screen"
                                         << "" << QVariant() << true;
        QTest::newRow("one word") << "FULLSCREEN"
                                  << "" << QVariant() << true;
        QTest::newRow("name in one word") << ""
                                          << "fullScreen" << QVariant() << true;
        QTest::newRow("name with a line") << ""
                                          << "full_screen_button" << QVariant() << true;
        QTest::newRow("full screen that is not to be pressed") << "Full screen"
                                                               << "" << QVariant("") << false;
        QTest::newRow("full of screens") << "Full of screens"
                                         << "" << QVariant() << false;
    }

    void theTourPressesWhatItsAuthorMarksAndFullScreen() {
        QFETCH(QString, text);
        QFETCH(QString, name);
        QFETCH(QVariant, mark);
        QFETCH(bool, pressed);
        QPushButton button(text);
        button.setObjectName(name);
        button.setProperty("tour", mark);
        QCOMPARE(pendant::isTourButton(&button), pressed);
    }

    void onlyButtonsThatCanBePressedAreFoundInTheirOrder() {
        QPushButton* hidden = addButton("Full screen 1");
        QPushButton* disabled = addButton("Full screen 2");
        QPushButton* first = addButton("Full screen 3");
        addButton("Other");
        QPushButton* second = addButton("Full screen 4");
        hidden->hide();
        disabled->setEnabled(false);
        QCoreApplication::processEvents();
        const auto found = pendant::tourButtons(m_page.get());
        QCOMPARE(found.size(), 2);
        QCOMPARE(found.at(0).data(), first);
        QCOMPARE(found.at(1).data(), second);
    }

    void aPressWithoutAWindowShowsNone() {
        int presses = 0;
        connect(m_button, &QPushButton::clicked, this, [&] { ++presses; });
        const Appeared appeared = pendant::press(m_button);
        QCOMPARE(presses, 1);
        QVERIFY(appeared.windows.isEmpty());
        QVERIFY(appeared.closed.isEmpty());
        QVERIFY(pendant::pressBack(m_button, appeared.windows));
        QCOMPARE(presses, 2);
    }

    void aWindowThatTheSecondPressTakesBackIsFine() {
        QWidget window;
        connect(m_button, &QPushButton::clicked, this, [&] { window.setVisible(!window.isVisible()); });
        const Appeared appeared = pendant::press(m_button);
        QCOMPARE(appeared.windows.size(), 1);
        QCOMPARE(appeared.windows.first().data(), &window);
        QVERIFY(pendant::pressBack(m_button, appeared.windows));
        QVERIFY(!window.isVisible());
    }

    void aWidgetThatGoesBackIntoItsPageIsFine() {
        auto* centre = new QWidget;
        m_layout->addWidget(centre);
        connect(m_button, &QPushButton::clicked, this, [&] {
            centre->setParent(centre->isWindow() ? m_page.get() : nullptr);
            centre->show();
        });
        const Appeared appeared = pendant::press(m_button);
        QCOMPARE(appeared.windows.size(), 1);
        QVERIFY(pendant::pressBack(m_button, appeared.windows));
        QVERIFY(!centre->isWindow());
        QVERIFY(centre->isVisible());
    }

    void aWindowThatStaysIsToldAndClosed() {
        QWidget window;
        connect(m_button, &QPushButton::clicked, &window, &QWidget::show);
        const Appeared appeared = pendant::press(m_button);
        QVERIFY(!pendant::pressBack(m_button, appeared.windows));
        QVERIFY(!window.isVisible());
    }

    void aButtonThatItsPressDeletesIsSurvived() {
        auto* window = new QWidget;
        QPointer<QAbstractButton> button(m_button);
        connect(m_button, &QPushButton::clicked, window, [&] {
            window->show();
            m_button->deleteLater();
        });
        const Appeared appeared = pendant::press(m_button);
        QVERIFY(button.isNull());
        QVERIFY(!pendant::pressBack(button, appeared.windows));
        delete window;
    }

    void aModalWindowIsClosedWithoutASecondPress() {
        int presses = 0;
        connect(m_button, &QPushButton::clicked, this, [&] {
            ++presses;
            auto* dialog = new QDialog(m_page.get());
            dialog->setAttribute(Qt::WA_DeleteOnClose);
            dialog->open();
        });
        const Appeared appeared = pendant::press(m_button);
        QCOMPARE(appeared.windows.size(), 1);
        QVERIFY(pendant::pressBack(m_button, appeared.windows));
        QCOMPARE(presses, 1);
        QCOMPARE(m_page->findChildren<QDialog*>().size(), 0);
    }

    void aWindowThatHoldsThePressUpIsPicturedAndClosed() {
        bool returned = false;
        connect(m_button, &QPushButton::clicked, this, [&] {
            QDialog dialog(m_page.get());
            dialog.resize(300, 200);
            dialog.exec();
            returned = true;
        });
        const Appeared appeared = pendant::press(m_button);
        QVERIFY(returned);
        QVERIFY(appeared.windows.isEmpty());
        QCOMPARE(appeared.closed.size(), 1);
        QCOMPARE(appeared.closed.first().size(), QSize(300, 200));
    }

    void oneWindowAfterTheOtherIsClosed() {
        connect(m_button, &QPushButton::clicked, this, [&] {
            QDialog(m_page.get()).exec();
            QDialog(m_page.get()).exec();
        });
        QCOMPARE(pendant::press(m_button).closed.size(), 2);
    }

private:
    QPushButton* addButton(const QString& text) {
        auto* button = new QPushButton(text);
        m_layout->addWidget(button);
        return button;
    }

    std::unique_ptr<QWidget> m_page;
    QVBoxLayout* m_layout = nullptr;
    QPushButton* m_button = nullptr;
};

QTEST_MAIN(TestPress)
#include "tst_tour_press.moc"
