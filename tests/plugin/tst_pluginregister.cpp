#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "brisk/modulemanager.h"
#include "kite/kitemodule.h"
#include "kite/plugin.h"
#include "kite/pluginregister.h"
#include "tarp/factory.h"

#include <QScopedPointer>
#include <QTest>

#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>

using kite::PluginBase;

namespace {

std::function<PluginBase*(QObject*)> makes(const QString& label) {
    return [label](QObject* parent) {
        auto* plugin = new PluginBase(parent);
        plugin->setPluginLabel(label);
        return plugin;
    };
}

// The label of what the register makes of `name`; "null" when it makes nothing.
QString madeOf(const QString& name) {
    const std::unique_ptr<PluginBase> plugin(kiteFactory()->create(name, nullptr));
    return plugin ? plugin->getPluginLabel() : QStringLiteral("null");
}

tarp::BModule* noModule(QObject*) {
    return nullptr;
}

// Notes the names of the nodes below `node` at which the node itself changes something.
void follow(brisk::ModuleObject* node, QObject* context, QStringList* into) {
    QObject::connect(node, &brisk::ModuleObject::touched, context, [=](brisk::ModuleObject* at, QObject* sender) {
        if (sender == node)
            into->append(at->name());
    });
}

} // namespace

class TestPluginRegister : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder.reset(new pendanttest::WorkingFolder);
        m_log.reset(new pendanttest::LogWatch);
        m_context.reset(new QObject);
    }

    void cleanup() {
        m_context.reset();
        for (const char* name : {"weld", "Weld", "paint", "empty"})
            kiteFactory()->cancel(name);
        pendanttest::resetHost();
        m_log.reset();
        m_folder.reset();
    }

    void thereIsOneRegisterForEveryThread() {
        kite::PluginRegister* elsewhere = nullptr;
        std::thread([&] { elsewhere = kiteFactory(); }).join();
        QVERIFY(elsewhere);
        QCOMPARE(elsewhere, kiteFactory());
    }

    void theFirstRegistrationOfANameWins() {
        kiteFactory()->regist("weld", makes("first"));
        kiteFactory()->regist("weld", makes("second"));
        QCOMPARE(madeOf("weld"), QString("first"));
        QVERIFY(m_log->lines().isEmpty());
    }

    void namesAreComparedWithTheirCase() {
        kiteFactory()->regist("weld", makes("small"));
        kiteFactory()->regist("Weld", makes("large"));
        QCOMPARE(madeOf("weld"), QString("small"));
        QCOMPARE(madeOf("Weld"), QString("large"));
        QCOMPARE(madeOf("WELD"), QString("null"));
    }

    void anUnknownNameMakesNothingAndSaysNothing() {
        QCOMPARE(kiteFactory()->create("weld", nullptr), static_cast<PluginBase*>(nullptr));
        QVERIFY(m_log->lines().isEmpty());
    }

    void theCreatorIsCalledWithTheParent() {
        kiteFactory()->regist("weld", makes("weld"));
        QObject parent;
        PluginBase* plugin = kiteFactory()->create("weld", &parent);
        QVERIFY(plugin);
        QCOMPARE(plugin->parent(), &parent);
    }

    void everyCallMakesAnotherObject() {
        kiteFactory()->regist("weld", makes("weld"));
        QObject parent;
        QVERIFY(kiteFactory()->create("weld", &parent) != kiteFactory()->create("weld", &parent));
    }

    void whatTheCreatorReturnsComesBackAlsoNull() {
        kiteFactory()->regist("empty", [](QObject*) -> PluginBase* { return nullptr; });
        QCOMPARE(kiteFactory()->create("empty", nullptr), static_cast<PluginBase*>(nullptr));
    }

    void anEmptyCreatorThrowsWhenItIsCalled() {
        kiteFactory()->regist("empty", nullptr);
        QVERIFY_EXCEPTION_THROWN(kiteFactory()->create("empty", nullptr), std::bad_function_call);
    }

    void aCreatorMayCancelItsOwnName() {
        auto alive = std::make_shared<int>(7);
        int seen = 0;
        kiteFactory()->regist("weld", [alive, &seen](QObject*) -> PluginBase* {
            kiteFactory()->cancel("weld");
            seen = *alive;
            return nullptr;
        });
        alive.reset();
        kiteFactory()->create("weld", nullptr);
        QCOMPARE(seen, 7);
        QCOMPARE(madeOf("weld"), QString("null"));
    }

    void cancellingForgetsTheCreator() {
        kiteFactory()->regist("weld", makes("weld"));
        kiteFactory()->regist("paint", makes("paint"));
        kiteFactory()->cancel("weld");
        QCOMPARE(madeOf("weld"), QString("null"));
        QCOMPARE(madeOf("paint"), QString("paint"));
    }

    void cancellingAnUnknownNameDoesNothing() {
        kiteFactory()->regist("paint", makes("paint"));
        kiteFactory()->cancel("weld");
        QCOMPARE(madeOf("paint"), QString("paint"));
        QVERIFY(m_log->lines().isEmpty());
    }

    void registeringEntersTheNameIntoTheHostsModuleFactory() {
        QStringList touched;
        follow(bfactory()->node, m_context.data(), &touched);
        kiteFactory()->regist("weld", makes("weld"));
        QVERIFY(bfactory()->creators.contains("weld"));
        QCOMPARE(touched.last(), QString("weld"));
        QVERIFY(bfactory()->node->hasCmobj("weld"));
        QVERIFY(!bfactory()->node->c("weld")->value().isValid());
    }

    void registeringEntersTheNameIntoTheHostsPluginManager() {
        QStringList touched;
        follow(brisk::pluginManager()->node, m_context.data(), &touched);
        kiteFactory()->regist("weld", makes("weld"));
        QCOMPARE(brisk::pluginManager()->plugins.value("weld")(), -1);
        QCOMPARE(touched.last(), QString("weld"));
        QVERIFY(!brisk::pluginManager()->node->c("weld")->value().isValid());
    }

    void theEntriesAreAnnounced() {
        brisk::ModuleObject* module = m(QStringLiteral("brisk.module_factory.weld"));
        QObject* sender = nullptr;
        QVariant announced(1);
        connect(module, &brisk::ModuleObject::changed, m_context.data(),
                [&](const QVariant& value, const QVariant&, QObject* by) {
                    announced = value;
                    sender = by;
                });
        kiteFactory()->regist("weld", makes("weld"));
        QCOMPARE(sender, bfactory()->node);
        QVERIFY(!announced.isValid());
    }

    void theRegisterAndTheHostsRecordKnowTheNameWhenItIsAnnounced() {
        QStringList known;
        connect(bfactory()->node, &brisk::ModuleObject::touched, m_context.data(), [&] {
            known = QStringList{madeOf("weld"), bfactory()->creators.contains("weld") ? "factory" : "",
                                brisk::pluginManager()->plugins.contains("weld") ? "manager" : ""};
        });
        kiteFactory()->regist("weld", makes("made"));
        QCOMPARE(known, QStringList({"made", "factory", ""}));
    }

    void thePluginManagerKnowsTheNameWhenItIsAnnounced() {
        brisk::ModuleObject* node = m(QStringLiteral("brisk.plugin_manager.weld"));
        bool known = false;
        QObject* sender = nullptr;
        connect(node, &brisk::ModuleObject::changed, m_context.data(),
                [&](const QVariant&, const QVariant&, QObject* by) {
                    known = brisk::pluginManager()->plugins.contains("weld");
                    sender = by;
                });
        kiteFactory()->regist("weld", makes("made"));
        QVERIFY(known);
        QCOMPARE(sender, brisk::pluginManager()->node);
    }

    void anEmptyCreatorThrowsWhenTheHostMakesTheModule() {
        kiteFactory()->regist("weld", nullptr);
        QVERIFY_EXCEPTION_THROWN(bfactory()->creators.value("weld")(nullptr), std::bad_function_call);
    }

    void aNameThatTheModuleFactoryHasIsLeftAlone() {
        bfactory()->creators.insert("weld", noModule);
        QStringList touched;
        follow(bfactory()->node, m_context.data(), &touched);
        kiteFactory()->regist("weld", makes("weld"));
        QCOMPARE(bfactory()->creators.value("weld")(nullptr), static_cast<tarp::BModule*>(nullptr));
        QCOMPARE(touched, QStringList());
        QVERIFY(brisk::pluginManager()->plugins.contains("weld"));
        QCOMPARE(madeOf("weld"), QString("weld"));
    }

    void aNameThatThePluginManagerHasIsLeftAlone() {
        brisk::pluginManager()->plugins.insert("weld", [] { return 5; });
        QStringList touched;
        follow(brisk::pluginManager()->node, m_context.data(), &touched);
        kiteFactory()->regist("weld", makes("weld"));
        QCOMPARE(brisk::pluginManager()->plugins.value("weld")(), 5);
        QCOMPARE(touched, QStringList());
        QVERIFY(bfactory()->creators.contains("weld"));
    }

    void aLaterRegistrationDoesNotTouchTheHost() {
        kiteFactory()->regist("weld", makes("first"));
        bfactory()->creators.clear();
        brisk::pluginManager()->plugins.clear();
        QStringList touched;
        follow(bfactory()->node, m_context.data(), &touched);
        follow(brisk::pluginManager()->node, m_context.data(), &touched);
        kiteFactory()->regist("weld", makes("second"));
        QVERIFY(bfactory()->creators.isEmpty());
        QVERIFY(brisk::pluginManager()->plugins.isEmpty());
        QCOMPARE(touched, QStringList());
    }

    void cancellingLeavesTheHostsEntries() {
        kiteFactory()->regist("weld", makes("weld"));
        kiteFactory()->cancel("weld");
        QVERIFY(bfactory()->creators.contains("weld"));
        QVERIFY(brisk::pluginManager()->plugins.contains("weld"));
        QVERIFY(bfactory()->node->hasCmobj("weld"));
        QVERIFY(brisk::pluginManager()->node->hasCmobj("weld"));
    }

    void aRegistrationAfterCancellingStoresAgainWithoutTouchingTheHost() {
        kiteFactory()->regist("weld", makes("first"));
        kiteFactory()->cancel("weld");
        QStringList touched;
        follow(bfactory()->node, m_context.data(), &touched);
        follow(brisk::pluginManager()->node, m_context.data(), &touched);
        kiteFactory()->regist("weld", makes("second"));
        QCOMPARE(madeOf("weld"), QString("second"));
        QCOMPARE(touched, QStringList());
    }

    void theHostMakesAModuleThatOwnsThePlugin() {
        QObject* parentOfPlugin = nullptr;
        kiteFactory()->regist("weld", [&](QObject* parent) {
            parentOfPlugin = parent;
            return new PluginBase(parent);
        });
        QObject parent;
        tarp::BModule* module = bfactory()->creators.value("weld")(&parent);
        auto* kite = dynamic_cast<kite::Kite*>(module);
        QVERIFY(kite);
        QCOMPARE(kite->parent(), &parent);
        QCOMPARE(kite->pluginName(), QString("weld"));
        QCOMPARE(parentOfPlugin, kite);
        QCOMPARE(kite->findChildren<PluginBase*>().size(), 1);
        QCOMPARE(bModule("brisk.kite.weld"), module);
    }

    void theModuleExistsWhenThePluginIsMade() {
        tarp::BModule* found = nullptr;
        kiteFactory()->regist("weld", [&](QObject* parent) {
            found = bModule("brisk.kite.weld");
            return new PluginBase(parent);
        });
        const std::unique_ptr<tarp::BModule> module(bfactory()->creators.value("weld")(nullptr));
        QCOMPARE(found, module.get());
    }

    void theHostCanStillMakeAModuleOfACancelledName() {
        kiteFactory()->regist("weld", makes("weld"));
        kiteFactory()->cancel("weld");
        const std::unique_ptr<tarp::BModule> module(bfactory()->creators.value("weld")(nullptr));
        QVERIFY(dynamic_cast<kite::Kite*>(module.get()));
        QVERIFY(module->findChildren<PluginBase*>().isEmpty());
    }

    void aCreatorThatThrowsLeavesNoModuleBehind() {
        kiteFactory()->regist("weld", [](QObject*) -> PluginBase* { throw std::runtime_error("no gas"); });
        QObject parent;
        QVERIFY_EXCEPTION_THROWN(bfactory()->creators.value("weld")(&parent), std::runtime_error);
        QVERIFY(parent.children().isEmpty());
        QCOMPARE(bModule("brisk.kite.weld"), static_cast<tarp::BModule*>(nullptr));
        QCOMPARE(madeOf("weld"), QString("null"));
    }

    void aModuleThatIsDeletedWhileItsPluginIsMadeIsNull() {
        kiteFactory()->regist("weld", [](QObject* parent) -> PluginBase* {
            delete parent;
            return nullptr;
        });
        QCOMPARE(bfactory()->creators.value("weld")(nullptr), static_cast<tarp::BModule*>(nullptr));
    }

    // The text of a literal in a plugin goes when the plugin's file does.
    void theNameIsCopied() {
        QChar text[] = {'w', 'e', 'l', 'd'};
        kiteFactory()->regist(QString::fromRawData(text, 4), makes("weld"));
        text[0] = 'W';
        QCOMPARE(madeOf("weld"), QString("weld"));
        QVERIFY(bfactory()->creators.contains("weld"));
        QVERIFY(brisk::pluginManager()->plugins.contains("weld"));
        const std::unique_ptr<tarp::BModule> module(bfactory()->creators.value("weld")(nullptr));
        QCOMPARE(dynamic_cast<kite::Kite*>(module.get())->pluginName(), QString("weld"));
    }

    void aPluginsNameIsMadeOfLettersAndDigits_data() {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("good");
        QTest::newRow("a word") << QByteArray("weld") << true;
        QTest::newRow("capitals, digits and lines") << QByteArray("Arc_Weld-2") << true;
        QTest::newRow("other letters") << QByteArray("\xe7\x84\x8a\xe6\x8e\xa5") << true;
        QTest::newRow("one letter") << QByteArray("w") << true;
        QTest::newRow("nothing") << QByteArray("") << false;
        QTest::newRow("a dot") << QByteArray("arc.weld") << false;
        QTest::newRow("a number sign") << QByteArray("#0") << false;
        QTest::newRow("a blank") << QByteArray("arc weld") << false;
        QTest::newRow("a slash at the end") << QByteArray("weld/") << false;
    }

    void aPluginsNameIsMadeOfLettersAndDigits() {
        QFETCH(QByteArray, name);
        QFETCH(bool, good);
        QCOMPARE(kite::isPluginName(name.constData()), good);
    }

    void registeringManyNamesKeepsEachCreator() {
        for (int i = 0; i < 200; ++i)
            kiteFactory()->regist(QString::number(i), makes(QString::number(i)));
        for (int i = 0; i < 200; ++i) {
            QCOMPARE(madeOf(QString::number(i)), QString::number(i));
            kiteFactory()->cancel(QString::number(i));
        }
    }

private:
    QScopedPointer<pendanttest::WorkingFolder> m_folder;
    QScopedPointer<pendanttest::LogWatch> m_log;
    QScopedPointer<QObject> m_context;
};

QTEST_MAIN(TestPluginRegister)
#include "tst_pluginregister.moc"
