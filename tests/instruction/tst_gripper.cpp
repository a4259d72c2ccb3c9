#include "registrylines.h"

#include "pendanttest/pendant.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QRegularExpression>
#include <QTest>

#include <memory>

using pendanttest::Pendant;

namespace {

helm::VexManager* registry() {
    return helm::VexManager::getVexManager();
}

QStringList typesThatKnow(const QString& line) {
    QStringList types;
    for (const QString& type : registry()->typeKeys) {
        if (QRegularExpression(registry()->patterns.value("c_" + type)).match(line).hasMatch())
            types << type;
    }
    return types;
}

} // namespace

// The gripper example as the pendant's program editor meets it: a shared object's entries in the registry.
class TestGripper : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void bothInstructionsStandInAGroupOfTheirOwn();
    void everyPieceOfAnInstructionIsThere_data() { types(); }
    void everyPieceOfAnInstructionIsThere();
    void theSkeletonAndWhatIsWrittenBelongToTheirTypeAlone_data() { types(); }
    void theSkeletonAndWhatIsWrittenBelongToTheirTypeAlone();
    void aLineIsInsertedThenEdited();
    void thePageSaysWhatThePluginBrings();
    void cleanup() { QVERIFY(m_pendant->verify()); }
    void cleanupTestCase() { m_pendant.reset(); }

private:
    static void types();

    std::unique_ptr<Pendant> m_pendant;
};

void TestGripper::initTestCase() {
    m_pendant.reset(new Pendant);
    QVERIFY(m_pendant->load(PLUGIN_gripper));
    m_pendant->start();
}

void TestGripper::types() {
    QTest::addColumn<QString>("type");
    QTest::newRow("close") << "CloseGripper";
    QTest::newRow("open") << "OpenGripper";
}

void TestGripper::bothInstructionsStandInAGroupOfTheirOwn() {
    QCOMPARE(registry()->typeKeys, QStringList({"CloseGripper", "OpenGripper"}));
    QCOMPARE(registryLines().filter(QRegularExpression("^(group|member) ")),
             QStringList({"group gripper|Gripper", "member gripper|CloseGripper", "member gripper|OpenGripper"}));
}

void TestGripper::everyPieceOfAnInstructionIsThere() {
    QFETCH(QString, type);
    QVERIFY(!registry()->descriptions.value(type).isEmpty());
    QVERIFY(registry()->defaultTexts.contains(type));
    for (const auto& creators : {registry()->insertWidgets, registry()->propertyWidgets}) {
        const std::unique_ptr<helm::BaseContentWidget> widget(creators.value(type)(nullptr));
        QCOMPARE(widget->ToString(), registry()->skeletons.value("s_" + type));
    }
}

void TestGripper::theSkeletonAndWhatIsWrittenBelongToTheirTypeAlone() {
    QFETCH(QString, type);
    QCOMPARE(typesThatKnow(registry()->skeletons.value("s_" + type)), QStringList(type));
    const std::unique_ptr<helm::BaseContentWidget> widget(registry()->insertWidgets.value(type)(nullptr));
    widget->findChild<QDoubleSpinBox*>("value")->setValue(12.5);
    QCOMPARE(typesThatKnow(widget->ToString()), QStringList(type));
    QCOMPARE(typesThatKnow(widget->ToString() + " // " + type), QStringList(type));
    QCOMPARE(typesThatKnow("// " + widget->ToString()), QStringList());
}

void TestGripper::aLineIsInsertedThenEdited() {
    const std::unique_ptr<helm::BaseContentWidget> inserting(registry()->insertWidgets.value("CloseGripper")(nullptr));
    QVERIFY(!inserting->CheckInsert());
    QVERIFY(inserting->findChild<QLabel*>("reason")->text().startsWith("Force: "));
    inserting->findChild<QDoubleSpinBox*>("value")->setValue(40);
    QVERIFY(inserting->CheckInsert());
    const QString line = inserting->ToString() + " // softly";

    const std::unique_ptr<helm::BaseContentWidget> editing(registry()->propertyWidgets.value("CloseGripper")(nullptr));
    editing->FillWith(line);
    editing->findChild<QDoubleSpinBox*>("value")->setValue(55);
    QVERIFY(editing->CheckReplace());
    QCOMPARE(editing->ToString(), QString("CloseGripper force=55N wait=200ms // softly"));
}

void TestGripper::thePageSaysWhatThePluginBrings() {
    QVERIFY(m_pendant->open("gripper"));
    QString text;
    for (const QLabel* label : m_pendant->page("gripper")->findChildren<QLabel*>())
        text += label->text() + '\n';
    for (const QString& type : registry()->typeKeys)
        QVERIFY2(text.contains(type + ' '), qPrintable(text));
    m_pendant->leave();
}

QTEST_MAIN(TestGripper)
#include "tst_gripper.moc"
