#include "framefixture.h"
#include "projectsfixture.h"

#include "frame/pagekeys.h"
#include "pages/projectsmodel.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

namespace {

/// The page before the controller of the default cell.
struct Bench {
    explicit Bench(bool connects = true) : session(connects) {
        // No larger than the screen that tests have: a press beside it would not arrive.
        frame.window->resize(1280, 590);
        frame.window->showPage(pendant::pagekeys::projects());
        Frame::settle();
    }

    QWidget* page() const { return frame.window->center()->page(pendant::pagekeys::projects()); }
    template <typename Widget = QPushButton> Widget* find(const QString& name) const {
        return page()->findChild<Widget*>(name);
    }
    bool isShown(const QString& name) const { return find<QWidget>(name)->isVisible(); }
    QTableView* table() const { return find<QTableView>("projects"); }
    /// The cells of a row but the time, joined by "|".
    QStringList rows() const {
        QStringList rows;
        const QAbstractItemModel* model = table()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            const auto cell = [&](int column) { return model->index(row, column).data().toString(); };
            rows << cell(0) + '|' + cell(1) + '|' + cell(3);
        }
        return rows;
    }
    void select(int row) const {
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {},
                          table()->visualRect(table()->model()->index(row, 0)).center());
        Frame::settle();
    }
    void click(const QString& button) {
        Frame::click(find(button));
        session.settle();
    }
    QString text(const QString& label) const {
        const auto* shown = find<QLabel>(label);
        return shown->isVisible() ? shown->text() : QString();
    }
    void type(const QString& name) const { find<QLineEdit>("projectName")->setText(name); }

    Disk disk;
    Session session;
    Frame frame;
};

} // namespace

// The robot's projects as the pendant lists, makes, opens and deletes them.
class TestProjectsPage : public QObject {
    Q_OBJECT

private slots:
    void listedAreTheProjectsAndWhichIsOpen();
    void withoutALinkItSaysSo();
    void whenTheLinkGoesTheRowsStayAndNothingCanBePressed();
    void whatAPluginMakesOrDeletesIsThereAtOnce();
    void whatAPluginOpensIsMarked();
    void aNewProjectIsMadeAndOpened();
    void cancelMakesNothing();
    void aNameThatIsNoneIsToldAndNotMade_data();
    void aNameThatIsNoneIsToldAndNotMade();
    void aNameThatIsTakenIsTold();
    void aFolderThatCannotBeMadeIsTold();
    void theSelectedProjectIsOpened();
    void deletingAsksFirst();
    void theOpenProjectCannotBeDeleted();
    void anotherSelectionTakesTheQuestionBack();
    void ofALinkTheLinkIsDeleted();
    void nothingOutsideTheRobotsFolderIsDeleted_data();
    void nothingOutsideTheRobotsFolderIsDeleted();
    void theSelectionStaysWithItsProject();
    void theWorkspaceIsDeclaredWhereNoneIsSet();
    void noTextIsCut_data();
    void noTextIsCut();
};

void TestProjectsPage::listedAreTheProjectsAndWhichIsOpen() {
    Bench bench;
    pendant::Workspace::create(QString::fromUtf8("Nachtschicht ä"), "half\nspeed");
    Frame::settle();
    QCOMPARE(bench.rows(), (QStringList{QString::fromUtf8("Nachtschicht ä||half speed"), "demo|Open|"}));
    const QString created = bench.table()->model()->index(0, 2).data().toString();
    QVERIFY2(QDateTime::fromString(created, "yyyy-MM-dd hh:mm:ss").isValid(), qPrintable(created));
    QVERIFY(!bench.isShown("emptyState"));
}

void TestProjectsPage::withoutALinkItSaysSo() {
    Bench bench(false);
    QVERIFY(bench.isShown("emptyState") && !bench.table()->isVisible());
    QVERIFY(!bench.find("newProject")->isEnabled());
    bench.session.robot.connectLinks();
    Frame::settle();
    QCOMPARE(bench.rows(), QStringList{"demo|Open|"});
    QVERIFY(bench.find("newProject")->isEnabled());
}

void TestProjectsPage::whenTheLinkGoesTheRowsStayAndNothingCanBePressed() {
    Bench bench;
    bench.disk.make("other");
    bench.session.settle();
    m("orca.project.refresh_project")->trigger();
    Frame::settle();
    bench.select(1);
    QVERIFY(bench.find("openProject")->isEnabled());
    bench.session.robot.bus(false);
    Frame::settle();
    QCOMPARE(bench.rows().size(), 2);
    QVERIFY(bench.isShown("projectsOffline"));
    for (const char* button : {"openProject", "removeProject", "newProject"})
        QVERIFY2(!bench.find(button)->isEnabled(), button);
    bench.session.robot.bus(true);
    Frame::settle();
    bench.click("newProject");
    bench.type("third");
    bench.session.robot.controllerLink(false);
    Frame::settle();
    QVERIFY(!bench.find("createProject")->isEnabled() && bench.find("cancelProject")->isEnabled());
}

void TestProjectsPage::whatAPluginMakesOrDeletesIsThereAtOnce() {
    Bench bench;
    bench.disk.make("other");
    QCOMPARE(bench.rows().size(), 1);
    bench.disk.remove("demo");
    Frame::settle();
    QCOMPARE(bench.rows(), QStringList{"other||"});
    bench.disk.remove("other");
    Frame::settle();
    QVERIFY(bench.rows().isEmpty());
    QVERIFY(bench.isShown("emptyState"));
}

void TestProjectsPage::whatAPluginOpensIsMarked() {
    Bench bench;
    QCOMPARE(kite::kiteInterface()->createProject("other", "new", true), 0);
    Frame::settle();
    QCOMPARE(bench.rows(), (QStringList{"demo||", "other|Open|new"}));
}

void TestProjectsPage::aNewProjectIsMadeAndOpened() {
    Bench bench;
    m("orca.toolpage.tool")->setValue(nullptr, "gripper");
    bench.click("newProject");
    QVERIFY(bench.find<QLineEdit>("projectName")->isVisible());
    QVERIFY(!bench.find("createProject")->isEnabled());
    bench.type("night shift");
    bench.find<QLineEdit>("projectDescription")->setText("half speed");
    bench.click("createProject");
    Frame::settle();
    QCOMPARE(bench.rows(), (QStringList{"demo||", "night shift|Open|half speed"}));
    QCOMPARE(Session::open(), QString("virtual/night shift"));
    QCOMPARE(Session::points()->cmobjCount(), 0);
    QCOMPARE(m("orca.toolpage.tool")->getString(), QString("gripper"));
    QCOMPARE(bench.disk.entries("night shift"), (QStringList{"project.json", "projectinfo.json"}));
    QVERIFY(!bench.find<QLineEdit>("projectName")->isVisible());
    QCOMPARE(bench.table()->currentIndex().row(), 1);
}

void TestProjectsPage::cancelMakesNothing() {
    Bench bench;
    bench.click("newProject");
    bench.type("other");
    bench.click("cancelProject");
    QVERIFY(!bench.find<QLineEdit>("projectName")->isVisible());
    QCOMPARE(bench.disk.entries(QString()), QStringList{"demo"});
    bench.click("newProject");
    QCOMPARE(bench.find<QLineEdit>("projectName")->text(), QString());
}

void TestProjectsPage::aNameThatIsNoneIsToldAndNotMade_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"_temp", ".", "..", "../x", "a/b", "/", ".git", " a", "a ", " "})
        QTest::newRow(name) << name;
    QTest::newRow("line break") << "a\nb" + QString(QChar(0x200b));
    QTest::newRow("invisible") << "a" + QString(QChar(0x200b));
    QTest::newRow("too long") << QString(61, 'x');
}

void TestProjectsPage::aNameThatIsNoneIsToldAndNotMade() {
    QFETCH(QString, name);
    Bench bench;
    bench.click("newProject");
    bench.type(name);
    QVERIFY(!bench.find("createProject")->isEnabled());
    QVERIFY(!bench.text("projectProblem").isEmpty());
    QTest::keyClick(bench.find<QLineEdit>("projectName"), Qt::Key_Return);
    QCOMPARE(bench.disk.entries(QString()), QStringList{"demo"});
    QVERIFY(!pendant::Workspace::create(name, QString()).isEmpty());
    QCOMPARE(bench.disk.entries(QString()), QStringList{"demo"});
    bench.type("fine");
    QVERIFY(bench.find("createProject")->isEnabled());
}

void TestProjectsPage::aNameThatIsTakenIsTold() {
    Bench bench;
    const QByteArray before = bench.disk.read("demo/projectinfo.json");
    bench.click("newProject");
    bench.type("demo");
    bench.click("createProject");
    QVERIFY2(bench.text("projectProblem").contains("demo"), qPrintable(bench.text("projectProblem")));
    QCOMPARE(bench.disk.read("demo/projectinfo.json"), before);
}

void TestProjectsPage::aFolderThatCannotBeMadeIsTold() {
    Bench bench;
    bench.click("newProject");
    bench.type(QString(60, QChar(0x9879))); // 180 bytes: fits
    QVERIFY(bench.find("createProject")->isEnabled());
    // A file stands where the robot's folder was.
    QVERIFY(QDir(bench.disk.at(QString())).removeRecursively());
    QFile file(bench.disk.workspace() + "/virtual");
    QVERIFY(file.open(QIODevice::WriteOnly));
    bench.click("createProject");
    QVERIFY2(bench.text("projectProblem").contains("virtual"), qPrintable(bench.text("projectProblem")));
    QCOMPARE(Session::open(), QString("virtual/demo"));
}

void TestProjectsPage::theSelectedProjectIsOpened() {
    Bench bench;
    pendant::Workspace::create("other", QString());
    Frame::settle();
    bench.select(1);
    bench.click("openProject");
    QCOMPARE(Session::open(), QString("virtual/other"));
    QCOMPARE(bench.rows(), (QStringList{"demo||", "other|Open|"}));
    QVERIFY(!bench.find("openProject")->isEnabled());
}

void TestProjectsPage::deletingAsksFirst() {
    Bench bench;
    bench.disk.make("other/programs");
    pendant::Workspace::create("third", QString());
    Frame::settle();
    bench.select(1);
    bench.click("removeProject");
    QVERIFY(bench.text("projectHint").contains("cannot be brought back"));
    QVERIFY(bench.disk.entries(QString()).contains("other"));
    bench.click("keepProject");
    QVERIFY(bench.isShown("removeProject") && bench.disk.entries(QString()).contains("other"));
    bench.click("removeProject");
    bench.session.robot.forgetTraffic();
    bench.click("confirmRemoval");
    QCOMPARE(bench.rows(), (QStringList{"demo|Open|", "third||"}));
    QCOMPARE(bench.disk.entries(QString()), (QStringList{"demo", "third"}));
    QCOMPARE(bench.session.robot.traffic().first().key, QString("project.remove_task"));
    QVERIFY(Session::messages().isEmpty());
}

void TestProjectsPage::theOpenProjectCannotBeDeleted() {
    Bench bench;
    bench.select(0);
    QVERIFY(!bench.find("removeProject")->isEnabled() && !bench.find("openProject")->isEnabled());
    QVERIFY(bench.text("projectHint").contains("is open"));
}

void TestProjectsPage::anotherSelectionTakesTheQuestionBack() {
    Bench bench;
    for (const char* name : {"a", "b"})
        pendant::Workspace::create(name, QString());
    Frame::settle();
    bench.select(0);
    bench.click("removeProject");
    bench.select(1);
    QVERIFY(bench.isShown("removeProject") && !bench.isShown("confirmRemoval"));
    // The one that is asked about is opened meanwhile.
    bench.click("removeProject");
    Session::open("b");
    Frame::settle();
    QVERIFY(!bench.isShown("confirmRemoval") && !bench.find("removeProject")->isEnabled());
}

void TestProjectsPage::ofALinkTheLinkIsDeleted() {
    Bench bench;
    const QString target = QDir::currentPath() + "/elsewhere";
    QVERIFY(QDir().mkpath(target + "/inside"));
    QVERIFY(QFile::link(target, bench.disk.at("link")));
    QCOMPARE(pendant::Workspace::remove(nullptr, "link"), QString());
    QCOMPARE(bench.disk.entries(QString()), QStringList{"demo"});
    QVERIFY(QFileInfo(target + "/inside").isDir());
}

void TestProjectsPage::nothingOutsideTheRobotsFolderIsDeleted_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"", ".", "..", "../..", "../virtual/other", "none", "other/programs", "a file"})
        QTest::newRow(name) << name;
}

void TestProjectsPage::nothingOutsideTheRobotsFolderIsDeleted() {
    QFETCH(QString, name);
    Bench bench;
    bench.disk.make("other/programs");
    QFile file(bench.disk.at("a file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(!pendant::Workspace::remove(nullptr, name).isEmpty());
    QCOMPARE(bench.disk.entries(QString()), (QStringList{"a file", "demo", "other"}));
    QCOMPARE(bench.disk.entries("other"), QStringList{"programs"});
}

void TestProjectsPage::theSelectionStaysWithItsProject() {
    Bench bench;
    pendant::Workspace::create("m", QString());
    Frame::settle();
    bench.select(1);
    pendant::Workspace::create("a", QString());
    Frame::settle();
    QCOMPARE(bench.rows().size(), 3);
    QCOMPARE(bench.table()->currentIndex().row(), 2);
    QVERIFY(bench.isShown("openProject"));
    pendant::Workspace::remove(nullptr, "m");
    Frame::settle();
    QVERIFY(!bench.isShown("openProject"));
}

void TestProjectsPage::theWorkspaceIsDeclaredWhereNoneIsSet() {
    const Disk disk;
    pendant::Workspace::declare();
    QCOMPARE(pendant::Workspace::path(), disk.workspace());
    pendant::settings::setText("workspace", "");
    pendant::Workspace::declare();
    QCOMPARE(pendant::Workspace::path(), QDir::currentPath() + "/workspace");
    const QString folder = QDir::currentPath() + QString::fromUtf8("/ä, 项目");
    QVERIFY(QDir().mkpath(folder) && QDir::setCurrent(folder));
    helm::standin::readSettingsFrom(folder + "/settings.ini");
    pendant::Workspace::declare();
    helm::standin::readSettingsFrom(QString());
    helm::standin::readSettingsFrom(folder + "/settings.ini");
    QCOMPARE(pendant::Workspace::path(), folder + "/workspace");
}

void TestProjectsPage::noTextIsCut_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QSize>("size");
    for (const char* language : {"en", "de", "zh_CN"}) {
        QTest::newRow(qPrintable(QString(language) + " large")) << language << QSize(1280, 800);
        QTest::newRow(qPrintable(QString(language) + " small")) << language << QSize(1024, 590);
    }
}

// PROJECT_PICTURES names a folder for pictures to look at.
void TestProjectsPage::noTextIsCut() {
    QFETCH(QString, language);
    QFETCH(QSize, size);
    auto* application = qobject_cast<pendant::Application*>(qApp);
    Bench bench;
    application->setLanguage(language);
    bench.frame.window->resize(size);
    pendant::Workspace::create("night shift", "half speed, without the conveyor");
    pendant::Workspace::create(QString::fromUtf8("项目一"), QString());
    Frame::settle();
    const auto check = [&](const QString& picture) {
        Frame::settle();
        const QString folder = qEnvironmentVariable("PROJECT_PICTURES");
        if (!folder.isEmpty())
            bench.frame.window->grab().save(
                QString("%1/%2-%3-%4.png").arg(folder, picture, language).arg(size.width()));
        for (const QPushButton* button : bench.page()->findChildren<QPushButton*>()) {
            if (button->isVisible())
                QVERIFY2(button->width() >= button->sizeHint().width() && button->height() >= 56,
                         qPrintable(button->objectName()));
        }
        for (const QLabel* label : bench.page()->findChildren<QLabel*>()) {
            if (label->isVisible() && label->wordWrap())
                QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
        }
    };
    check("list");
    const QString state = bench.table()->model()->index(0, pendant::ProjectsModel::State).data().toString();
    QVERIFY(!state.isEmpty());
    QVERIFY(bench.table()->columnWidth(pendant::ProjectsModel::State) >=
            bench.table()->fontMetrics().horizontalAdvance(state) + 24);
    bench.select(1);
    check("selected");
    bench.click("removeProject");
    check("asking");
    bench.select(0);
    check("open");
    bench.click("newProject");
    bench.type("../night");
    check("creating");
    bench.session.robot.bus(false);
    check("offline");
    application->setLanguage("en");
}

PENDANT_TEST_MAIN(TestProjectsPage)
#include "tst_projects_page.moc"
