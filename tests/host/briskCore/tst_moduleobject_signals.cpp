#include "brisk/moduleobject.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

using brisk::ModuleObject;
using Change = std::function<void(ModuleObject*)>;

Q_DECLARE_METATYPE(Change)

class Signals : public QObject {
    Q_OBJECT

private slots:
    void init();
    void everyNotifyingWriteIsAnnounced_data();
    void everyNotifyingWriteIsAnnounced();
    void aSilentWriteIsNotAnnounced();
    void setAnnouncesAtTheNodeThatIsWritten();
    void triggerGivesThePresentValueTwice();
    void insertingTellsTheParent();
    void lookingUpWithCreateTellsOfTheTopmostNewNode();
    void removingTellsTheNameOnceTheChildIsGone();
    void deletingFromOutsideTellsTheParent();
    void clearingHasASignalOfItsOwn();
    void settingAListTellsOfItsItems();
    void copyingTellsOfWhatCameIn();
    void importTellsOfEveryLeafThatIsWritten();
    void importTellsOfWhatItMakesAndPrunes();
    void aSilentImportTellsNothing();
    void changesAreTouchedUpToTheRoot();
    void touchedTellsOfEveryKindOfChange_data();
    void touchedTellsOfEveryKindOfChange();
    void aRemovedNodeNoLongerTouchesItsOldParent();
    void nothingIsHeardAfterDisconnecting();
    void aReceiverThatDiesIsForgotten();

private:
    std::unique_ptr<ModuleObject> m_root;
    QObject m_sender;
};

void Signals::init() {
    m_root.reset(new ModuleObject("root"));
}

void Signals::everyNotifyingWriteIsAnnounced_data() {
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::newRow("a first value") << QVariant() << QVariant(1);
    QTest::newRow("another value") << QVariant(1) << QVariant("two");
    QTest::newRow("an equal value") << QVariant(1) << QVariant(1);
    QTest::newRow("an invalid value") << QVariant(1) << QVariant();
    QTest::newRow("invalid over invalid") << QVariant() << QVariant();
}

void Signals::everyNotifyingWriteIsAnnounced() {
    QFETCH(QVariant, before);
    QFETCH(QVariant, after);
    m_root->setValue(nullptr, before, false);
    QSignalSpy changed(m_root.get(), &ModuleObject::changed);
    m_root->setValue(&m_sender, after);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).value<QVariant>(), after);
    QCOMPARE(changed.at(0).at(1).value<QVariant>(), before);
    QCOMPARE(changed.at(0).at(2).value<QObject*>(), &m_sender);
}

void Signals::aSilentWriteIsNotAnnounced() {
    QSignalSpy changed(m_root.get(), &ModuleObject::changed);
    QSignalSpy inserted(m_root.get(), &ModuleObject::inserted);
    QSignalSpy touched(m_root.get(), &ModuleObject::touched);
    m_root->setValue(nullptr, 1, false);
    m_root->set(nullptr, "a.b", 1, false);
    QVERIFY(m_root->insertChild(-1, new ModuleObject("c"), false));
    QVERIFY(m_root->removeChild(m_root->c("c"), false));
    m_root->setList(nullptr, {1, 2}, false);
    m_root->clear(nullptr, false, true);
    QCOMPARE(changed.size() + inserted.size() + touched.size(), 0);
    QVERIFY(m_root->isEmpty());
}

void Signals::setAnnouncesAtTheNodeThatIsWritten() {
    ModuleObject* leaf = m_root->r("a.b", true);
    QSignalSpy atLeaf(leaf, &ModuleObject::changed);
    QSignalSpy atRoot(m_root.get(), &ModuleObject::changed);
    m_root->set(&m_sender, "a.b", 1);
    QCOMPARE(atLeaf.size(), 1);
    QCOMPARE(atRoot.size(), 0);
}

void Signals::triggerGivesThePresentValueTwice() {
    m_root->setValue(nullptr, "project");
    QSignalSpy changed(m_root.get(), &ModuleObject::changed);
    m_root->trigger();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).value<QVariant>(), QVariant("project"));
    QCOMPARE(changed.at(0).at(1).value<QVariant>(), QVariant("project"));
    QVERIFY(!changed.at(0).at(2).value<QObject*>());
}

void Signals::insertingTellsTheParent() {
    m_root->child("a");
    QSignalSpy inserted(m_root.get(), &ModuleObject::inserted);
    auto* first = new ModuleObject("first");
    QVERIFY(m_root->insertChild(0, first));
    ModuleObject* last = m_root->append(nullptr, "last");
    QVERIFY(!m_root->insertChild(0, nullptr));
    QCOMPARE(m_root->append(nullptr, "last"), last);
    QCOMPARE(inserted.size(), 2);
    QCOMPARE(inserted.at(0).at(0).value<ModuleObject*>(), first);
    QCOMPARE(inserted.at(0).at(1).toInt(), 0);
    QCOMPARE(inserted.at(1).at(0).value<ModuleObject*>(), last);
    QCOMPARE(inserted.at(1).at(1).toInt(), 2);
}

void Signals::lookingUpWithCreateTellsOfTheTopmostNewNode() {
    ModuleObject* a = m_root->child("a");
    QSignalSpy atRoot(m_root.get(), &ModuleObject::inserted);
    QSignalSpy atA(a, &ModuleObject::inserted);
    ModuleObject* leaf = m_root->r("a.b.c", true);
    QCOMPARE(m_root->r("a.b.c", true), leaf);
    QCOMPARE(atRoot.size(), 0);
    QCOMPARE(atA.size(), 1);
    QCOMPARE(atA.at(0).at(0).value<ModuleObject*>(), leaf->pmobj());
}

void Signals::removingTellsTheNameOnceTheChildIsGone() {
    ModuleObject* child = m_root->child("a");
    QStringList heard;
    connect(child, &QObject::destroyed, this, [&heard] { heard << "destroyed"; });
    connect(m_root.get(), &ModuleObject::removed, this, [&heard](const QString& name) { heard << "removed " + name; });
    QVERIFY(m_root->removeChild(child));
    QVERIFY(!m_root->removeChild(nullptr));
    QCOMPARE(heard, (QStringList{"destroyed", "removed a"}));
}

void Signals::deletingFromOutsideTellsTheParent() {
    ModuleObject* child = m_root->child("a");
    QSignalSpy removed(m_root.get(), &ModuleObject::removed);
    delete child;
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed.at(0).at(0).toString(), QString("a"));
}

void Signals::clearingHasASignalOfItsOwn() {
    m_root->set(nullptr, "a", 1);
    QSignalSpy cleared(m_root.get(), &ModuleObject::cleared);
    QSignalSpy removed(m_root.get(), &ModuleObject::removed);
    m_root->clear(&m_sender, true, false);
    QCOMPARE(cleared.size(), 1);
    QCOMPARE(cleared.at(0).at(0).value<QObject*>(), &m_sender);
    QCOMPARE(removed.size(), 0);
}

void Signals::settingAListTellsOfItsItems() {
    m_root->child("old");
    QStringList heard;
    connect(m_root.get(), &ModuleObject::cleared, this, [&heard] { heard << "cleared"; });
    connect(m_root.get(), &ModuleObject::inserted, this,
            [&heard](ModuleObject* child, int index) { heard << child->name() + QString(" at %1").arg(index); });
    m_root->setList(nullptr, {1, 2}, true);
    QCOMPARE(heard, (QStringList{"cleared", "#0 at 0", "#1 at 1"}));
}

void Signals::copyingTellsOfWhatCameIn() {
    ModuleObject other("other");
    other.setValue(nullptr, 7);
    other.set(nullptr, "a", 1);
    QSignalSpy changed(m_root.get(), &ModuleObject::changed);
    QSignalSpy inserted(m_root.get(), &ModuleObject::inserted);
    m_root->copyFrom(&other);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).value<QVariant>(), QVariant(7));
    QCOMPARE(inserted.size(), 1);
}

void Signals::importTellsOfEveryLeafThatIsWritten() {
    m_root->importFromJson(nullptr, QJsonObject{{"a", 1}, {"l", QJsonArray{1, 2}}}, false, true, false);
    QSignalSpy a(m_root->c("a"), &ModuleObject::changed);
    QSignalSpy item(m_root->r("l.#1"), &ModuleObject::changed);
    QSignalSpy list(m_root->c("l"), &ModuleObject::changed);
    m_root->importFromJson(&m_sender, QJsonObject{{"a", 1}, {"l", QJsonArray{1, 3}}}, true, true, false);
    QCOMPARE(a.size(), 1);
    QCOMPARE(a.at(0).at(2).value<QObject*>(), &m_sender);
    QCOMPARE(item.size(), 1);
    QCOMPARE(list.size(), 0);
}

void Signals::importTellsOfWhatItMakesAndPrunes() {
    m_root->set(nullptr, "old", 1);
    QSignalSpy inserted(m_root.get(), &ModuleObject::inserted);
    QSignalSpy removed(m_root.get(), &ModuleObject::removed);
    QStringList leafAtInsertion;
    connect(m_root.get(), &ModuleObject::inserted, this,
            [&](ModuleObject* child) { leafAtInsertion << child->c("leaf")->getString(); });
    m_root->importFromJson(nullptr, QJsonObject{{"new", QJsonObject{{"leaf", "filled"}}}}, true, true, true);
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(leafAtInsertion, QStringList{"filled"});
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed.at(0).at(0).toString(), QString("old"));
}

void Signals::aSilentImportTellsNothing() {
    m_root->set(nullptr, "old", 1);
    m_root->set(nullptr, "a", 1);
    QSignalSpy a(m_root->c("a"), &ModuleObject::changed);
    QSignalSpy inserted(m_root.get(), &ModuleObject::inserted);
    QSignalSpy removed(m_root.get(), &ModuleObject::removed);
    QSignalSpy touched(m_root.get(), &ModuleObject::touched);
    m_root->importFromJson(nullptr, QJsonObject{{"a", 2}, {"l", QJsonArray{1}}}, false, true, true);
    QCOMPARE(a.size() + inserted.size() + removed.size() + touched.size(), 0);
    QCOMPARE(m_root->c("a")->getInt(), 2);
    QVERIFY(!m_root->c("old"));
}

void Signals::changesAreTouchedUpToTheRoot() {
    ModuleObject* leaf = m_root->r("a.b.leaf", true);
    QSignalSpy atRoot(m_root.get(), &ModuleObject::touched);
    QSignalSpy atB(leaf->pmobj(), &ModuleObject::touched);
    QSignalSpy beside(m_root->child("c"), &ModuleObject::touched);
    atRoot.clear();
    m_root->set(&m_sender, "a.b.leaf", 1);
    QCOMPARE(atRoot.size(), 1);
    QCOMPARE(atRoot.at(0).at(0).value<ModuleObject*>(), leaf);
    QCOMPARE(atRoot.at(0).at(1).value<QObject*>(), &m_sender);
    QCOMPARE(atB.size(), 1);
    QCOMPARE(beside.size(), 0);
}

void Signals::touchedTellsOfEveryKindOfChange_data() {
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
    row("write", [](ModuleObject* node) { node->setValue(nullptr, 1); });
    row("insert", [](ModuleObject* node) { node->insertChild(0, new ModuleObject("x")); });
    row("append", [](ModuleObject* node) { node->append(nullptr, "x"); });
    row("make by look-up", [](ModuleObject* node) { node->r("x.y", true); });
    row("remove", [](ModuleObject* node) { node->removeChild(node->c("child")); });
    row("delete", [](ModuleObject* node) { delete node->c("child"); });
    row("clear", [](ModuleObject* node) { node->clear(nullptr, true, false); });
    row("list", [](ModuleObject* node) { node->setList(nullptr, {1}); });
    row("empty list", [](ModuleObject* node) { node->setList(nullptr, {}); });
    row("array import", [](ModuleObject* node) { node->importFromJson(nullptr, QJsonArray(), true, true, true); });
    row("array import into an empty node", [](ModuleObject* node) {
        node->clear(nullptr, false, true);
        node->importFromJson(nullptr, QJsonArray(), true, true, true);
    });
    row("copy", [](ModuleObject* node) {
        const ModuleObject other("other");
        node->copyFrom(&other);
    });
}

void Signals::touchedTellsOfEveryKindOfChange() {
    QFETCH(Change, change);
    ModuleObject* node = m_root->r("a.node", true);
    node->set(nullptr, "child", 1);
    QSignalSpy touched(m_root.get(), &ModuleObject::touched);
    change(node);
    QVERIFY(!touched.isEmpty());
    QCOMPARE(touched.at(0).at(0).value<ModuleObject*>(), node);
}

void Signals::aRemovedNodeNoLongerTouchesItsOldParent() {
    QSignalSpy touched(m_root.get(), &ModuleObject::touched);
    {
        ModuleObject beside("beside");
        beside.set(nullptr, "a", 1);
    }
    QCOMPARE(touched.size(), 0);
}

void Signals::nothingIsHeardAfterDisconnecting() {
    int heard = 0;
    const auto count = [&heard] { ++heard; };
    connect(m_root.get(), &ModuleObject::changed, this, count);
    connect(m_root.get(), &ModuleObject::touched, this, count);
    m_root->setValue(nullptr, 1);
    QCOMPARE(heard, 2);
    const QMetaObject::Connection one = connect(m_root.get(), &ModuleObject::inserted, this, count);
    QVERIFY(disconnect(one));
    m_root->child("a");
    QCOMPARE(heard, 3);
    QVERIFY(m_root->disconnect(this));
    m_root->setValue(nullptr, 1);
    m_root->child("b");
    QCOMPARE(heard, 3);
    connect(m_root.get(), &ModuleObject::changed, this, count);
    m_root->setValue(nullptr, 1);
    QCOMPARE(heard, 4);
}

void Signals::aReceiverThatDiesIsForgotten() {
    int heard = 0;
    {
        QObject receiver;
        connect(m_root.get(), &ModuleObject::touched, &receiver, [&heard] { ++heard; });
        m_root->setValue(nullptr, 1);
    }
    m_root->setValue(nullptr, 2);
    QCOMPARE(heard, 1);
}

QTEST_APPLESS_MAIN(Signals)
#include "tst_moduleobject_signals.moc"
