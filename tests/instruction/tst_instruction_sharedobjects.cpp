#include "registrylines.h"

#include "pendanttest/pendant.h"

#include "brisk/modulemanager.h"

#include <QTest>

#include <memory>

using pendanttest::Pendant;

namespace {

QString told(const QString& plugin, const QString& what) {
    return m("fixture.instructions." + plugin + '.' + what)->value().toString();
}

} // namespace

// Two shared objects, each loaded with local scope, register instructions: there is one registry for both and the host.
// The cases share a pendant, for a shared object registers its plugins once.
class TestSharedObjects : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        m_pendant.reset(new Pendant);
        QVERIFY(m_pendant->load(PLUGIN_fixture_instructingleft));
        QVERIFY(m_pendant->load(PLUGIN_fixture_instructingright));
        m_pendant->start();
    }

    void eachSeesTheOneRegistryOfTheHost() {
        const QString here = QString::number(reinterpret_cast<quintptr>(helm::VexManager::getVexManager()));
        QCOMPARE(told("left", "registry"), here);
        QCOMPARE(told("right", "registry"), here);
    }

    void eachSeesWhatTheOtherRegistered() {
        QCOMPARE(told("left", "types"), QString("left right"));
        QCOMPARE(told("right", "types"), QString("left right"));
    }

    void theHostSeesTheRegistrationsOfBoth() {
        QCOMPARE(registryLines(), QStringList({"type left",
                                               "type right",
                                               "group left|The left",
                                               "group right|The right",
                                               "member left|left",
                                               "member right|right",
                                               "member shared|left",
                                               "member shared|right",
                                               "default left|",
                                               "default right|",
                                               "description left|Of left",
                                               "description right|Of right",
                                               "insert widget left",
                                               "insert widget right",
                                               "pattern c_left|^\\s*left\\s*(?://.*)?$",
                                               "pattern c_right|^\\s*right\\s*(?://.*)?$",
                                               "property widget left",
                                               "property widget right",
                                               "skeleton s_left|left",
                                               "skeleton s_right|right"}));
    }

    void theHostMakesTheWidgetsOfBoth() {
        for (const QString& type : {QString("left"), QString("right")}) {
            const std::unique_ptr<helm::BaseContentWidget> widget(
                helm::VexManager::getVexManager()->insertWidgets.value(type)(nullptr));
            QCOMPARE(widget->ToString(), type);
            widget->FillWith("another line");
            QCOMPARE(widget->ToString(), QString("another line"));
            QVERIFY(widget->CheckInsert() && widget->CheckReplace());
        }
    }

    void theRegistrationsOutliveThePlugins() {
        m_pendant->close();
        const auto& creators = helm::VexManager::getVexManager()->propertyWidgets;
        const std::unique_ptr<helm::BaseContentWidget> widget(creators.value("right")(nullptr));
        QCOMPARE(widget->ToString(), QString("right"));
    }

    void cleanup() { QVERIFY(m_pendant->verify()); }
    void cleanupTestCase() {
        m_pendant.reset();
        QCOMPARE(registryLines(), QStringList());
    }

private:
    std::unique_ptr<Pendant> m_pendant;
};

QTEST_MAIN(TestSharedObjects)
#include "tst_instruction_sharedobjects.moc"
