#include "../contents.h"
#include "records.h"

#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/virtualcontroller.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using controller::VirtualController;

namespace {

void startCell(VirtualController* controller) {
    controller::ProjectStart start = controller::emptyProject();
    start.variables << variableRecord("plain", "int", 1, false) << variableRecord("count", "int", 1);
    controller->project()->start(start);
    controller->persistentVariables()->list({{"shift", "QString", "early"}, {"hours", "double", 0}});
}

QString variables(VirtualController* controller) {
    QStringList texts;
    for (const QString& name : controller->persistentVariables()->names())
        texts << name + '=' + controller->persistentVariables()->variable(name).value.toVariant().toString();
    return texts.join(' ');
}

} // namespace

class TestPersistentFile : public QObject {
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void valuesOutliveTheController() {
        withController([](VirtualController* controller) {
            QCOMPARE(variables(controller), "count=1 hours=0 shift=early");
            controller->persistentVariables()->modify({{"count", 7}, {"shift", "late"}});
        });
        withController([](VirtualController* controller) {
            QCOMPARE(variables(controller), "count=7 hours=0 shift=late");
            const controller::Content project = controller->project()->content();
            QCOMPARE(project->r("var._list.#1.value.[0][0][0]")->getInt(), 7);
            QCOMPARE(project->r("var._list.#0.value.[0][0][0]")->getInt(), 1);
        });
    }

    void aRecordThatAPluginAddedIsThereAgain() {
        withController([](VirtualController* controller) {
            QJsonObject record = variableRecord("added", "bool", false);
            record.insert("description", "by a plugin");
            controller->project()->put(underNode("#4", record), nullptr, false);
            controller->persistentVariables()->modify({{"added", true}});
            controller->project()->put(underNode("#5", variableRecord("gone", "int", 3, false)), nullptr, false);
        });
        withController([](VirtualController* controller) {
            QCOMPARE(controller->project()->variables().nodes(), (QStringList{"#0", "#1", "#2"}));
            const controller::Content record = controller->project()->variables().record("#2");
            QCOMPARE(text(record), R"({"description":"by a plugin","name":"added","pers":true,"type":"bool",)"
                                   R"("value":{"[0][0][0]":true}})");
            QCOMPARE(variables(controller), "added=true count=1 hours=0 shift=early");
            controller->project()->removeVariables({"added"});
        });
        withController([](VirtualController* controller) { QCOMPARE(controller->project()->variables().size(), 2); });
    }

    void aValueOfAnotherTypeIsLeftOut() {
        withController([](VirtualController* controller) {
            controller->persistentVariables()->modify({{"count", 7}, {"shift", "late"}, {"hours", 3}});
        });
        VirtualController controller;
        controller::ProjectStart start = controller::emptyProject();
        start.variables << variableRecord("count", "QString", "one");
        controller.project()->start(start);
        controller.persistentVariables()->list({{"shift", "int", 2}, {"hours", "int", 0}});
        QString error;
        QVERIFY(controller.keepValuesIn(path(), &error));
        QCOMPARE(variables(&controller), "count=one hours=0 shift=2");
    }

    void aVariableThatIsNoLongerPersistentStaysAsTheCellSays() {
        withController([](VirtualController* controller) {
            controller->persistentVariables()->modify({{"count", 7}});
        });
        VirtualController controller;
        controller::ProjectStart start = controller::emptyProject();
        start.variables << variableRecord("count", "int", 1, false);
        controller.project()->start(start);
        QString error;
        QVERIFY(controller.keepValuesIn(path(), &error));
        QCOMPARE(controller.project()->variables().size(), 1);
        QCOMPARE(controller.project()->content()->r("var._list.#0.value.[0][0][0]")->getInt(), 1);
    }

    void changesAreWrittenFromTheEventLoop() {
        VirtualController controller;
        startCell(&controller);
        QString error;
        QVERIFY(controller.keepValuesIn(path(), &error));
        controller.persistentVariables()->modify({{"count", 7}});
        QVERIFY(!QFile::exists(path()));
        QTRY_VERIFY(QFile::exists(path()));
        QVERIFY(written().contains("7"));
    }

    void withoutAFileNothingIsWritten() {
        {
            VirtualController controller;
            startCell(&controller);
            controller.persistentVariables()->modify({{"count", 7}});
            QCoreApplication::processEvents();
        }
        QVERIFY(QDir(m_folder->path()).isEmpty());
    }

    void aBadFileIsNamedAndLeftAlone_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no JSON") << QByteArray("{");
        QTest::newRow("array") << QByteArray("[]");
        QTest::newRow("another file") << QByteArray("{\"bus\": {}}");
        QTest::newRow("empty") << QByteArray();
    }

    void aBadFileIsNamedAndLeftAlone() {
        QFETCH(QByteArray, text);
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        {
            VirtualController controller;
            startCell(&controller);
            QString error;
            QVERIFY(!controller.keepValuesIn(path(), &error));
            QVERIFY2(error.contains(path()) && error.endsWith('.'), qPrintable(error));
            controller.persistentVariables()->modify({{"count", 7}});
        }
        QCOMPARE(written(), text);
    }

    void aFileThatCannotBeWrittenIsRemarked() {
        VirtualController controller;
        startCell(&controller);
        QSignalSpy remarked(&controller, &VirtualController::remarked);
        QString error;
        const QString nowhere = m_folder->filePath("none/controller.json");
        QVERIFY(controller.keepValuesIn(nowhere, &error));
        controller.persistentVariables()->modify({{"count", 7}});
        QTRY_COMPARE(remarked.size(), 1);
        QVERIFY(remarked.first().first().toString().contains(nowhere));
    }

private:
    QString path() const { return m_folder->filePath("controller.json"); }

    QByteArray written() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }

    template <typename Body> void withController(const Body& body) {
        VirtualController controller;
        startCell(&controller);
        QString error;
        QVERIFY2(controller.keepValuesIn(path(), &error), qPrintable(error));
        body(&controller);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestPersistentFile)
#include "tst_persistentfile.moc"
