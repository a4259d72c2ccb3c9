#include "registrylines.h"
#include "symbolbinding.h"

#include "pendanttest/pendant.h"

#include "brisk/modulemanager.h"
#include "kite/vexmanager.h"

#include <QFile>
#include <QTest>

#include <dlfcn.h>
#include <memory>

using pendanttest::Pendant;

namespace {

// With the last flag a shared object takes its own copy of the accessor before the one that program and host export, so
// that nothing but the symbol's being unique keeps the registries one. Sanitizers cannot load with it.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
const int loadFlags = RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE;
#else
const int loadFlags = RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE | RTLD_DEEPBIND;
#endif

QString libraryOf(const void* address) {
    Dl_info info;
    return ::dladdr(address, &info) ? QFile::decodeName(info.dli_fname) : QString();
}

QString told(const QString& plugin, const QString& what) {
    return m("fixture.instructions." + plugin + '.' + what)->value().toString();
}

} // namespace

// Two shared objects, each loaded with local scope, register instructions: there is one registry for both and the host.
// The cases share a pendant, for a shared object registers its plugins once, when it is loaded.
class TestSharedObjects : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        m_pendant.reset(new Pendant);
        for (const char* path : {PLUGIN_fixture_instructingleft, PLUGIN_fixture_instructingright})
            QVERIFY2(::dlopen(path, loadFlags), ::dlerror());
        m_pendant->start();
    }

    void theRegistryIsAUniqueSymbolOfEveryFileThatHasIt_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("left") << QString(PLUGIN_fixture_instructingleft);
        QTest::newRow("right") << QString(PLUGIN_fixture_instructingright);
        QTest::newRow("the host's library") << libraryOf(&helm::BaseContentWidget::staticMetaObject);
        QTest::newRow("the plugin library") << libraryOf(&kite::VexManager::staticMetaObject);
    }

    void theRegistryIsAUniqueSymbolOfEveryFileThatHasIt() {
        QFETCH(QString, path);
        QVERIFY2(path.contains(".so"), qPrintable(path));
        QCOMPARE(bindingOf("_ZZN4helm10VexManager13getVexManagerEvE8registry", path), int(STB_GNU_UNIQUE));
        QCOMPARE(bindingOf("_ZGVZN4helm10VexManager13getVexManagerEvE8registry", path), int(STB_GNU_UNIQUE));
        // Where it was compiled into its callers there is no accessor left to be found.
        const int accessor = bindingOf("_ZN4helm10VexManager13getVexManagerEv", path);
        QVERIFY2(accessor == STB_WEAK || accessor == -1, qPrintable(QString::number(accessor)));
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
                                               "skeleton s_right|right",
                                               "title left|Written by left",
                                               "title right|Written by right"}));
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
