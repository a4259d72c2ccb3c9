#include "framefixture.h"

#include "developer/treepanel.h"

#include <QClipboard>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QToolButton>
#include <QTreeView>

using brisk::ModuleObject;
using pendant::TreeModel;

class TestTreePanel : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void asMuchIsOpenAtFirstAsAScreenHolds();
    void aValueIsEditedInPlace();
    void aTextThatDoesNotDoStaysInTheFieldAndIsExplained();
    void leavingTheFieldDoesNotLoseWhatWasTyped();
    void lookingAtAValueDoesNotWriteIt();
    void whatIsTypedSurvivesAChangeOfTheNode();
    void aNodeThatGoesWhileItIsEditedIsNoHarm();
    void keyAndJsonAreCopied();
    void buttonsAreOffWhereTheyHaveNothingToDo();
    void whatWasOpenIsOpenAgain();
    void theSearchGoesFromHitToHit();
    void aSearchWithoutHitsSaysSo();
    void aSearchIsStopped();
    void aHitThatIsGoneIsNoHarm();
    void closingTheDockEndsTheSearch();
    void nodesComeAndGoBeneathTheView();

private:
    template <typename Widget> Widget* find(const QString& name) const { return m_panel->findChild<Widget*>(name); }
    QTreeView* view() const { return find<QTreeView>("tree"); }
    QModelIndex value(const QString& key) const {
        return m_panel->model()->reveal(m_root->r(key)).siblingAtColumn(TreeModel::ValueColumn);
    }
    QString current() const {
        const ModuleObject* node = m_panel->model()->node(view()->currentIndex());
        return node ? node->key() : QString();
    }
    QLineEdit* edit(const QString& key) {
        view()->setCurrentIndex(value(key));
        find<QToolButton>("treeEdit")->click();
        return find<QLineEdit>("valueEdit");
    }
    void search(const QString& text) {
        auto* field = find<QLineEdit>("searchField");
        field->setText(text);
        QTest::keyClick(field, Qt::Key_Return);
    }
    QString searchState() const { return find<QLabel>("searchState")->text(); }

    std::unique_ptr<ModuleObject> m_root;
    std::unique_ptr<pendant::TreePanel> m_panel;
};

void TestTreePanel::init() {
    m_root.reset(new ModuleObject(QString()));
    m_root->set(nullptr, "project.speed", 250.0);
    m_root->set(nullptr, "project.name", "weld");
    m_root->set(nullptr, "project.points.p1.x", 1);
    m_root->set(nullptr, "io.weld", true);
    m_panel.reset(new pendant::TreePanel(m_root.get(), pendant::Theme::light()));
    m_panel->resize(800, 600);
    m_panel->setLive(true);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

void TestTreePanel::cleanup() {
    m_panel.reset();
    m_root.reset();
}

void TestTreePanel::asMuchIsOpenAtFirstAsAScreenHolds() {
    const auto isOpen = [this](const QString& key) { return view()->isExpanded(value(key).siblingAtColumn(0)); };
    QVERIFY(isOpen("project") && isOpen("project.points.p1"));
    m_root->append(nullptr, "list")->setList(nullptr, QVector<QVariant>(1000, 1).toList());
    m_panel.reset(new pendant::TreePanel(m_root.get(), pendant::Theme::light()));
    m_panel->setLive(true);
    QVERIFY(isOpen("project") && !isOpen("list"));
}

void TestTreePanel::aValueIsEditedInPlace() {
    QLineEdit* field = edit("project.speed");
    QVERIFY(field);
    QCOMPARE(field->text(), QString("250.0"));
    QTest::keyClicks(field, "300");
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(m_root->r("project.speed")->value(), QVariant(300.0));
    QTRY_VERIFY(!find<QLineEdit>("valueEdit"));
}

void TestTreePanel::aTextThatDoesNotDoStaysInTheFieldAndIsExplained() {
    QLineEdit* field = edit("project.speed");
    QTest::keyClicks(field, "fast");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(find<QLineEdit>("valueEdit"), field);
    QCOMPARE(field->text(), QString("fast"));
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(field->hasFocus());
    auto* refusal = find<QLabel>("treeRefusal");
    QVERIFY(refusal->isVisible());
    QVERIFY(refusal->text().contains("fast"));
    QCOMPARE(m_root->r("project.speed")->value(), QVariant(250.0));
    field->clear();
    QTest::keyClicks(field, "2");
    QVERIFY(!refusal->isVisible());
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(m_root->r("project.speed")->value(), QVariant(2.0));
}

void TestTreePanel::leavingTheFieldDoesNotLoseWhatWasTyped() {
    QLineEdit* field = edit("project.speed");
    QTest::keyClicks(field, "fast");
    find<QLineEdit>("searchField")->setFocus();
    QVERIFY(!field->hasFocus());
    QCOMPARE(find<QLineEdit>("valueEdit"), field);
    QCOMPARE(field->text(), QString("fast"));
    QVERIFY(find<QLabel>("treeRefusal")->isVisible());
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Escape);
    QTRY_VERIFY(!find<QLineEdit>("valueEdit"));
    QVERIFY(!find<QLabel>("treeRefusal")->isVisible());
    QCOMPARE(m_root->r("project.speed")->value(), QVariant(250.0));
}

void TestTreePanel::lookingAtAValueDoesNotWriteIt() {
    QSignalSpy changed(m_root->r("project.speed"), &ModuleObject::changed);
    QLineEdit* field = edit("project.speed");
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_VERIFY(!find<QLineEdit>("valueEdit"));
    QCOMPARE(changed.count(), 0);
}

void TestTreePanel::whatIsTypedSurvivesAChangeOfTheNode() {
    QLineEdit* field = edit("project.speed");
    QTest::keyClicks(field, "3");
    m_root->set(nullptr, "project.speed", 7.0);
    QTest::qWait(TreeModel::repaintMs + 50);
    QCOMPARE(field->text(), QString("3"));
}

void TestTreePanel::aNodeThatGoesWhileItIsEditedIsNoHarm() {
    QLineEdit* field = edit("project.speed");
    QTest::keyClicks(field, "3");
    m_root->c("project")->removeChild(m_root->r("project.speed"), false);
    QTest::keyClick(field, Qt::Key_Return);
    QTest::qWait(TreeModel::repaintMs + 50);
    m_root->set(nullptr, "project.speed", 1.0);
    QTest::qWait(TreeModel::repaintMs + 50);
    QCOMPARE(m_root->r("project.speed")->value(), QVariant(1.0));
}

void TestTreePanel::keyAndJsonAreCopied() {
    view()->setCurrentIndex(value("project.points"));
    view()->setFocus();
    QTest::keyClick(view(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("project.points"));
    QTest::keyClick(view(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text().simplified(), QString("{ \"p1\": { \"x\": 1 } }"));
    find<QToolButton>("treeCopyKey")->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("project.points"));
    view()->setCurrentIndex(value("project.name"));
    find<QToolButton>("treeCopyJson")->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("\"weld\""));
}

void TestTreePanel::buttonsAreOffWhereTheyHaveNothingToDo() {
    view()->setCurrentIndex(QModelIndex());
    QVERIFY(!find<QToolButton>("treeCopyKey")->isEnabled());
    QVERIFY(!find<QToolButton>("treeEdit")->isEnabled());
    view()->setCurrentIndex(value("project"));
    QVERIFY(find<QToolButton>("treeCopyKey")->isEnabled());
    QVERIFY(!find<QToolButton>("treeEdit")->isEnabled());
    view()->setCurrentIndex(value("project.name"));
    QVERIFY(find<QToolButton>("treeEdit")->isEnabled());
}

void TestTreePanel::whatWasOpenIsOpenAgain() {
    view()->collapse(value("io").siblingAtColumn(0));
    view()->collapse(value("project.points.p1").siblingAtColumn(0));
    view()->setCurrentIndex(value("project.name"));
    m_panel->setLive(false);
    QCOMPARE(m_panel->model()->rowCount(), 0);
    m_panel->setLive(true);
    QVERIFY(view()->isExpanded(value("project").siblingAtColumn(0)));
    QVERIFY(view()->isExpanded(value("project.points").siblingAtColumn(0)));
    QVERIFY(!view()->isExpanded(value("project.points.p1").siblingAtColumn(0)));
    QVERIFY(!view()->isExpanded(value("io").siblingAtColumn(0)));
    QCOMPARE(current(), QString("project.name"));
}

void TestTreePanel::theSearchGoesFromHitToHit() {
    search("weld");
    auto* hits = find<QTableView>("searchHits");
    QTRY_COMPARE(hits->model()->rowCount(), 2);
    QVERIFY(hits->isVisible());
    QTRY_VERIFY(searchState().startsWith("2 found"));
    auto* next = find<QToolButton>("searchNext");
    next->click();
    QCOMPARE(current(), QString("project.name"));
    next->click();
    QCOMPARE(current(), QString("io.weld"));
    next->click();
    QCOMPARE(current(), QString("project.name"));
    find<QToolButton>("searchPrevious")->click();
    QCOMPARE(current(), QString("io.weld"));
    QTest::keyClick(view(), Qt::Key_F3);
    QCOMPARE(current(), QString("project.name"));
}

void TestTreePanel::aSearchWithoutHitsSaysSo() {
    search("grinder");
    QTRY_VERIFY(searchState().contains("grinder"));
    QTRY_VERIFY(searchState().startsWith("No key and no value"));
    QVERIFY(!find<QTableView>("searchHits")->isVisible());
    find<QLineEdit>("searchField")->clear();
    QTRY_VERIFY(searchState().isEmpty());
}

void TestTreePanel::aSearchIsStopped() {
    QVariantList values;
    for (int i = 0; i < 200000; ++i)
        values.append(i);
    m_root->append(nullptr, "many")->setList(nullptr, values, false);
    search("grinder");
    auto* stop = find<QToolButton>("searchStop");
    QVERIFY(stop->isEnabled());
    QTRY_VERIFY(searchState().startsWith("Searching"));
    stop->click();
    QVERIFY(!stop->isEnabled());
    QVERIFY2(searchState().startsWith("Stopped"), qPrintable(searchState()));
}

void TestTreePanel::aHitThatIsGoneIsNoHarm() {
    search("weld");
    QTRY_COMPARE(find<QTableView>("searchHits")->model()->rowCount(), 2);
    m_root->removeChild(m_root->c("io"));
    find<QToolButton>("searchPrevious")->click();
    find<QToolButton>("searchPrevious")->click();
    QCOMPARE(current(), QString("project.name"));
}

void TestTreePanel::closingTheDockEndsTheSearch() {
    search("weld");
    QTRY_COMPARE(find<QTableView>("searchHits")->model()->rowCount(), 2);
    m_panel->setLive(false);
    QCOMPARE(find<QTableView>("searchHits")->model()->rowCount(), 0);
    QCOMPARE(find<QLineEdit>("searchField")->text(), QString());
}

void TestTreePanel::nodesComeAndGoBeneathTheView() {
    view()->expandAll();
    for (int round = 0; round < 40; ++round) {
        ModuleObject* points = m_root->r("project.points", true);
        points->importFromJson(nullptr, QJsonObject{{"q", QJsonObject{{"x", round}}}}, round % 3, true, true);
        if (round % 4 == 0)
            m_root->c("project")->clear(nullptr, round % 8 == 0, true);
        m_root->set(nullptr, "project.points.p1.x", round, round % 2 == 0);
        view()->setCurrentIndex(value("project.points.p1.x"));
        view()->viewport()->repaint();
        QTest::qWait(round % 5 == 0 ? TreeModel::repaintMs + 10 : 1);
        view()->viewport()->repaint();
    }
    QTest::qWait(TreeModel::repaintMs + 50);
    QCOMPARE(value("project.points.p1.x").data().toString(), QString("39"));
}

PENDANT_TEST_MAIN(TestTreePanel)
#include "tst_developer_treepanel.moc"
