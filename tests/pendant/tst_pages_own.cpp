#include "framefixture.h"

#include "frame/pagekeys.h"
#include "pages/messagefilter.h"
#include "pages/plugincard.h"
#include "pages/settingspage.h"
#include "pages/startpage.h"
#include "plugins/callguard.h"
#include "plugins/pluginloader.h"
#include "plugins/pluginsession.h"
#include "tarp/factory.h"

#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>

#include <stdexcept>

using helm::standin::MessageLevel;
using helm::standin::MessageList;

namespace {

class Module : public tarp::BModule {
public:
    Module(const QString& name, bool fails, QObject* parent) : BModule(parent), m_fails(fails) {
        bindMobj("brisk.kite." + name);
        instantiatedCenterWidget()->addPage(this, "kite." + name, new QWidget);
    }
    void init() override {
        if (m_fails)
            throw std::runtime_error("no feeder");
    }

private:
    bool m_fails;
};

void registerPlugin(const QString& name, bool fails) {
    bfactory()->creators[name] = [=](QObject* parent) -> tarp::BModule* { return new Module(name, fails, parent); };
}

QStringList words(const QWidget* widget) {
    QStringList result;
    for (const QLabel* label : widget->findChildren<QLabel*>())
        result << label->text();
    return result;
}

} // namespace

class TestOwnPages : public QObject {
    Q_OBJECT

private slots:
    void init() { bfactory()->creators.clear(); }
    void startSaysWhereToPutPluginsWhileThereAreNone();
    void startListsWhatRunsAndWhatFailedAndWhy();
    void startOpensThePageOfAPlugin();
    void startNamesAFileThatCouldNotBeLoaded();
    void messagesAreListedNewestFirst();
    void messagesAreFilteredByLevel();
    void messagesThatArriveAreFilteredToo();
    void clearEmptiesTheList();
    void settingsAskForThemeAndLanguage();
    void settingsShowWhatIsChosen();
};

void TestOwnPages::startSaysWhereToPutPluginsWhileThereAreNone() {
    Frame frame;
    QVERIFY(frame.find("emptyState")->isVisible());
    frame.pages->start()->follow(nullptr, nullptr, {"/opt/plugins"});
    QVERIFY(words(frame.find("startPage")).contains("/opt/plugins"));
    QVERIFY(frame.find("startPage")->findChildren<pendant::PluginCard*>().isEmpty());
}

void TestOwnPages::startListsWhatRunsAndWhatFailedAndWhy() {
    Frame frame;
    registerPlugin("good", false);
    registerPlugin("bad", true);
    pendant::CallGuard guard;
    pendant::PluginSession session(&guard);
    frame.pages->start()->follow(&session, nullptr, {});
    session.start(frame.window->center());
    Frame::settle();
    const auto cards = frame.find("startPage")->findChildren<pendant::PluginCard*>();
    QCOMPARE(cards.size(), 2);
    QVERIFY(words(cards.at(0)).join('|').contains("no feeder"));
    QVERIFY(words(cards.at(0)).contains("Failed"));
    QVERIFY(words(cards.at(1)).contains("good"));
    QVERIFY(words(cards.at(1)).contains("Running"));
    QCOMPARE(frame.find<QLabel>("pluginCount")->text().simplified(), QString("Running: 1 Failed: 1"));
    session.stop();
}

void TestOwnPages::startOpensThePageOfAPlugin() {
    Frame frame;
    registerPlugin("good", false);
    pendant::CallGuard guard;
    pendant::PluginSession session(&guard);
    frame.pages->start()->follow(&session, nullptr, {});
    session.start(frame.window->center());
    Frame::settle();
    Frame::click(frame.find("open:kite.good"));
    QCOMPARE(frame.window->center()->current(), QString("kite.good"));
    session.stop();
}

void TestOwnPages::startNamesAFileThatCouldNotBeLoaded() {
    Frame frame;
    QFile file("broken.so");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("text");
    file.close();
    pendant::PluginLoader loader;
    loader.loadFile(QFileInfo(file).absoluteFilePath());
    frame.pages->start()->follow(nullptr, &loader, {});
    const auto cards = frame.find("startPage")->findChildren<pendant::PluginCard*>();
    QCOMPARE(cards.size(), 1);
    QVERIFY(words(cards.at(0)).contains("broken.so"));
    QVERIFY(words(cards.at(0)).contains("Not loaded"));
    QVERIFY(words(cards.at(0)).join('|').contains("ELF"));
}

void TestOwnPages::messagesAreListedNewestFirst() {
    Frame frame;
    MessageList::instance()->add(MessageLevel::Information, "a", "first");
    MessageList::instance()->add(MessageLevel::Error, "b", "second");
    const QAbstractItemModel* model = frame.find<QListView>("messages")->model();
    QCOMPARE(model->index(0, 0).data().toString(), QString("second"));
    QCOMPARE(model->index(1, 0).data().toString(), QString("first"));
}

void TestOwnPages::messagesAreFilteredByLevel() {
    Frame frame;
    MessageList::instance()->add(MessageLevel::Information, "a", "information");
    MessageList::instance()->add(MessageLevel::Warning, "a", "warning");
    MessageList::instance()->add(MessageLevel::Error, "a", "error");
    frame.window->showPage(pendant::pagekeys::messages());
    const QAbstractItemModel* model = frame.find<QListView>("messages")->model();
    QCOMPARE(model->rowCount(), 3);
    Frame::click(frame.find("showWarnings"));
    QCOMPARE(model->rowCount(), 2);
    Frame::click(frame.find("showErrors"));
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(model->index(0, 0).data().toString(), QString("error"));
    Frame::click(frame.find("showAll"));
    QCOMPARE(model->rowCount(), 3);
}

void TestOwnPages::messagesThatArriveAreFilteredToo() {
    Frame frame;
    frame.window->showPage(pendant::pagekeys::messages());
    Frame::click(frame.find("showErrors"));
    MessageList::instance()->add(MessageLevel::Warning, "a", "warning");
    const QListView* list = frame.find<QListView>("messages");
    QCOMPARE(list->model()->rowCount(), 0);
    QVERIFY(!list->isVisible());
    MessageList::instance()->add(MessageLevel::Error, "a", "error");
    QVERIFY(list->isVisible());
}

void TestOwnPages::clearEmptiesTheList() {
    Frame frame;
    frame.window->showPage(pendant::pagekeys::messages());
    QVERIFY(!frame.find("clearMessages")->isEnabled());
    MessageList::instance()->add(MessageLevel::Warning, "a", "warning");
    Frame::click(frame.find("clearMessages"));
    QVERIFY(Frame::messages().isEmpty());
    QVERIFY(!frame.find("messages")->isVisible());
}

void TestOwnPages::settingsAskForThemeAndLanguage() {
    Frame frame;
    frame.window->showPage(pendant::pagekeys::settings());
    QSignalSpy theme(frame.pages->settings(), &pendant::SettingsPage::themeChosen);
    QSignalSpy language(frame.pages->settings(), &pendant::SettingsPage::languageChosen);
    Frame::click(frame.find("theme:dark"));
    Frame::click(frame.find("language:zh_CN"));
    QCOMPARE(theme, (QList<QVariantList>{{"dark"}}));
    QCOMPARE(language, (QList<QVariantList>{{"zh_CN"}}));
}

void TestOwnPages::settingsShowWhatIsChosen() {
    Frame frame;
    QVERIFY(frame.find<QPushButton>("theme:light")->isChecked());
    frame.window->setTheme(pendant::Theme::dark());
    QVERIFY(frame.find<QPushButton>("theme:dark")->isChecked());
    QVERIFY(!frame.find<QPushButton>("theme:light")->isChecked());
    frame.pages->settings()->setLanguage("de");
    QVERIFY(frame.find<QPushButton>("language:de")->isChecked());
}

PENDANT_TEST_MAIN(TestOwnPages)
#include "tst_pages_own.moc"
