#include "../contents.h"

#include "controller/cellfile.h"
#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/robot/pathcheck.h"
#include "controller/robot/robot.h"

#include <QDir>
#include <QFile>
#include <QTest>

using controller::CellFile;
using controller::Content;
using controller::Message;
using controller::RobotModel;
using controller::Verb;
using controller::VirtualController;

namespace {

QString pathOf(const char* name) {
    return QStringLiteral(EXAMPLE_CELLS "/") + name;
}

bool load(VirtualController* controller, const QString& path) {
    QString error;
    if (!CellFile::load(path, controller, &error))
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return error.isEmpty();
}

QString unitsOf(const RobotModel& model) {
    QStringList units;
    for (const controller::Axis& axis : model.axes())
        units << (axis.isLinear ? "mm" : "deg");
    return units.join(' ');
}

} // namespace

class TestExampleCells : public QObject {
    Q_OBJECT

private slots:
    void everyCellIsGood_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("default") << CellFile::defaultPath();
        const QStringList names = QDir(EXAMPLE_CELLS).entryList({"*.json"});
        QCOMPARE(names, (QStringList{"palletising.json", "welding.json"}));
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << pathOf(qPrintable(name));
    }

    void everyCellIsGood() {
        QFETCH(QString, path);
        VirtualController controller;
        QVERIFY(load(&controller, path));
        QVERIFY(controller.project()->points().size() > 3);
        QVERIFY(controller.persistentVariables()->names().size() >= 3);
        QVERIFY(controller.robot()->model().tools.size() >= 3);
        QVERIFY(controller.robot()->model().wobjs.size() >= 3);
        QVERIFY(controller.requests()->knows("system.controller.get_params"));
    }

    void everyCellHasSomethingOfEachKind_data() { everyCellIsGood_data(); }

    void everyCellHasSomethingOfEachKind() {
        QFETCH(QString, path);
        VirtualController controller;
        QVERIFY(load(&controller, path));
        QSet<int> types;
        const Content details = controller.bus()->get("io.signals", "signal_detail");
        for (brisk::ModuleObject* detail : details->cmobjs())
            types.insert(detail->c("signal_type")->getInt());
        QCOMPARE(types, (QSet<int>{1, 2, 3, 4, 5, 6}));
        QVERIFY(controller.bus()->get("register.list", "")->cmobjCount() >= 2);
        const Content motion = controller.bus()->get("motion.data", "");
        for (const char* list : {"tools.system", "tools.project", "wobjs.system", "wobjs.project", "wobjs.global"})
            QVERIFY2(motion->r(list)->cmobjCount() > 0, list);
        const QString variables = text(brisk::standin::contentOf(motion->c("variables")));
        QVERIFY(variables.contains("\"speed\"") && variables.contains("\"zone\""));
    }

    // Points that hang in the air or lie below what they stand on would teach nothing.
    void everyCartesianPointIsAboveItsWorkObject_data() { everyCellIsGood_data(); }

    void everyCartesianPointIsAboveItsWorkObject() {
        QFETCH(QString, path);
        VirtualController controller;
        QVERIFY(load(&controller, path));
        int count = 0;
        const Content points = controller.project()->points().content();
        for (brisk::ModuleObject* point : points->cmobjs()) {
            const brisk::ModuleObject* z = point->r("value.[0][0][0].pose.frame.pos.z");
            if (!z)
                continue;
            ++count;
            QVERIFY2(z->getDouble() > 10 && z->getDouble() < 500, qPrintable(point->c("name")->getString()));
        }
        QVERIFY(count >= 3);
    }

    void inTheDefaultCellTheToolCanGoFromEveryPointToEveryOther() {
        VirtualController controller;
        QVERIFY(load(&controller, CellFile::defaultPath()));
        const QStringList names{"home", "above_part", "part", "conveyor"};
        for (const QString& from : names) {
            for (const QString& to : names) {
                const controller::MoveError error = controller.pathCheck()->between(from, to);
                QVERIFY2(!error, qPrintable(from + ", " + to + ": " + error.text));
            }
        }
    }

    void itsJoggingStartsFreely_data() { everyCellIsGood_data(); }

    void itsJoggingStartsFreely() {
        QFETCH(QString, path);
        for (int axis = 0; axis < 6; ++axis) {
            VirtualController controller;
            QVERIFY(load(&controller, path));
            controller.robot()->jog({controller::JogCommand::Cartesian, axis, 50});
            controller.clock()->step(400);
            QVERIFY2(controller.robot()->isMoving(), qPrintable(controller.robot()->stoppedBy()));
        }
    }

    void oneVariableOfEveryCellIsNotRemoved_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("default") << CellFile::defaultPath() << QByteArray("order_id");
        QTest::newRow("welding") << pathOf("welding.json") << QByteArray("schedule");
        QTest::newRow("palletising") << pathOf("palletising.json") << QByteArray("pallet_id");
    }

    void oneVariableOfEveryCellIsNotRemoved() {
        QFETCH(QString, path);
        QFETCH(QByteArray, name);
        VirtualController controller;
        QVERIFY(load(&controller, path));
        Message message;
        message.verb = Verb::Execute;
        message.key = "project.variable";
        message.content = content("{\"operator\": \"remove\", \"variables\": [\"" + name + "\"]}");
        QCOMPARE(controller.handle(message)->getInt(-5), 1);
    }

    void whatThePageOnCellFilesShowsIsGood() {
        QFile page(CELL_FILE_PAGE);
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QStringList parts = QString::fromUtf8(page.readAll()).split("```json\n");
        QVERIFY(parts.size() >= 5);
        for (const QString& part : parts.mid(1)) {
            VirtualController controller;
            QString error;
            const QByteArray cell = part.section("```", 0, 0).toUtf8();
            QVERIFY2(CellFile::loadText(cell, "shown", &controller, &error), qPrintable(error));
        }
    }

    void theDefaultCellHasTheStandardRobot() {
        VirtualController controller;
        const QString standard = text(controller.bus()->get("robot.axes", ""));
        const double reach = controller.robot()->model().lengths.upperArm;
        QVERIFY(load(&controller, CellFile::defaultPath()));
        QCOMPARE(text(controller.bus()->get("robot.axes", "")), standard);
        QCOMPARE(controller.robot()->model().lengths.upperArm, reach);
        QCOMPARE(text(controller.bus()->get("robot.frames", "")),
                 R"({"tools":["camera","flange","gripper","tool0"],"wobjs":["conveyor","table","wobj0","world"]})");
        QCOMPARE(text(controller.bus()->get("robot.frame", "")), R"({"tool":"gripper","wobj":"table"})");
    }

    void theDefaultCellHasAVariableOfEveryType() {
        VirtualController controller;
        QVERIFY(load(&controller, CellFile::defaultPath()));
        QStringList types;
        const Content records = controller.project()->variables().content();
        for (brisk::ModuleObject* record : records->cmobjs())
            types << record->c("type")->getString();
        for (const char* type : {"int", "double", "bool", "QString", "QVariantList", "QVariantMap", "serials"})
            QVERIFY2(types.contains(type), type);
    }

    void theWeldingCellHasAPositioner() {
        VirtualController controller;
        QVERIFY(load(&controller, pathOf("welding.json")));
        QCOMPARE(unitsOf(controller.robot()->model()), "deg deg deg deg deg deg deg deg");
    }

    void thePalletisingCellStandsOnATrack() {
        VirtualController controller;
        QVERIFY(load(&controller, pathOf("palletising.json")));
        QCOMPARE(unitsOf(controller.robot()->model()), "deg deg deg deg deg deg mm");
        const Content before = controller.bus()->get("robot.position", "cartesian.pose.frame.pos.y");
        controller.robot()->jog({controller::JogCommand::Joint, 6, 100});
        controller.clock()->step(400);
        const Content after = controller.bus()->get("robot.position", "cartesian.pose.frame.pos.y");
        QCOMPARE(after->getDouble() - before->getDouble(), 120.0);
    }
};

QTEST_GUILESS_MAIN(TestExampleCells)
#include "tst_examplecells.moc"
