#include "controller/robot/movemessage.h"

#include "frames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using controller::MoveCommand;
using controller::MoveError;

namespace {

QJsonValue json(const QByteArray& text) {
    const QJsonDocument document = QJsonDocument::fromJson('[' + text + ']');
    if (!document.isArray())
        qFatal("no JSON: %s", text.constData());
    return document.array().first();
}

QByteArray move(const QByteArray& point, const QByteArray& speed = "0.25") {
    return "{\"point\": {" + point + "}, \"traj\": {\"speed\": " + speed + "}}";
}

const QByteArray place = R"("trans": [0.97, -0.1, 1.155])";
const QByteArray turn = R"("rot": [0.09, -0.03, 0.17])";

} // namespace

class TestMoveMessage : public QObject {
    Q_OBJECT

private slots:
    void placesAreInMetresAndAnglesInThousandsOfDegrees() {
        MoveCommand command;
        const MoveError error = readMove(json(move(place + ',' + turn)), MoveCommand::Linear, &command);
        QVERIFY2(!error, qPrintable(error.text));
        QCOMPARE(text(controller::poseOf(command.target.pose)), "970 -100 1155 / 90 -30 170");
        QCOMPARE(command.way, MoveCommand::Linear);
        QVERIFY(!command.configuration);
    }

    void theSpeedIsMetresASecondOrAShare() {
        MoveCommand command;
        QVERIFY(!readMove(json(move(place + ',' + turn)), MoveCommand::Linear, &command));
        QCOMPARE(command.speed, 250.0);
        QVERIFY(!readMove(json(move(place + ',' + turn)), MoveCommand::Joint, &command));
        QCOMPARE(command.speed, 0.25);
        QCOMPARE(command.way, MoveCommand::Joint);
    }

    void aConfigurationIsQuadrantsAndBranches() {
        MoveCommand command;
        const QByteArray conf = R"("conf": [0, -1, 2, -3.0, 4, 0, 1, 5])";
        QVERIFY(!readMove(json(move(place + ',' + turn + ',' + conf)), MoveCommand::Joint, &command));
        QVERIFY(command.configuration.has_value());
        QCOMPARE(command.configuration->quadrants, (std::array<int, 7>{0, -1, 2, -3, 4, 0, 1}));
        QCOMPARE(command.configuration->branches, 5);
    }

    void whatIsMissingOrWrongIsSaid_data() {
        QTest::addColumn<QByteArray>("sent");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        const QString noTarget = "The move has no target: \"point.trans\"";
        const QString noTurn = "The target of the move has no orientation: \"point.rot\"";
        const QString noConf = "The target of the move has no configuration: \"point.conf\" must be a list of eight";
        const QString noSpeed = "The move has no speed: \"traj.speed\" must be a number.";
        const auto row = [](const char* name, const QByteArray& sent, MoveError::Code code, const QString& text) {
            QTest::newRow(name) << sent << int(code) << text;
        };
        row("nothing", "null", MoveError::NoTarget, noTarget + " is missing.");
        row("an empty point", move(""), MoveError::NoTarget, noTarget + " is missing.");
        row("a point that is none", R"({"point": 5})", MoveError::NoTarget, noTarget + " is missing.");
        row("no target", move(turn), MoveError::NoTarget, noTarget + " is missing.");
        row("half a target", move(turn + R"(, "trans": [1, 2])"), MoveError::NoTarget, noTarget + " must be a list");
        row("a text", move(turn + R"(, "trans": ["1", 2, 3])"), MoveError::NoTarget, noTarget + " must be a list");
        row("no list", move(turn + R"(, "trans": 3)"), MoveError::NoTarget, noTarget + " must be a list");
        row("no orientation", move(place), MoveError::NoOrientation, noTurn + " is missing.");
        row("four angles", move(place + R"(, "rot": [0, 0, 0, 0])"), MoveError::NoOrientation,
            noTurn + " must be a list");
        row("no angles", move(place + R"(, "rot": [])"), MoveError::NoOrientation, noTurn + " must be a list");
        row("seven numbers", move(place + ',' + turn + R"(, "conf": [0, 0, 0, 0, 0, 0, 0])"),
            MoveError::BadConfiguration, noConf);
        row("nine numbers", move(place + ',' + turn + R"(, "conf": [0, 0, 0, 0, 0, 0, 0, 0, 0])"),
            MoveError::BadConfiguration, noConf);
        row("half a quadrant", move(place + ',' + turn + R"(, "conf": [0, 0.5, 0, 0, 0, 0, 0, 0])"),
            MoveError::BadConfiguration, noConf);
        row("far too many turns", move(place + ',' + turn + R"(, "conf": [0, 1e300, 0, 0, 0, 0, 0, 0])"),
            MoveError::BadConfiguration, noConf);
        row("no speed", "{\"point\": {" + place + ',' + turn + "}}", MoveError::BadSpeed, noSpeed);
        row("a word for a speed", move(place + ',' + turn, "\"fast\""), MoveError::BadSpeed, noSpeed);
    }

    void whatIsMissingOrWrongIsSaid() {
        QFETCH(QByteArray, sent);
        QFETCH(int, code);
        QFETCH(QString, text);
        MoveCommand command;
        command.speed = -1;
        const MoveError error = readMove(json(sent), MoveCommand::Joint, &command);
        QCOMPARE(error.code, code);
        QVERIFY2(error.text.startsWith(text), qPrintable(error.text));
        QCOMPARE(command.speed, -1.0);
    }
};

QTEST_GUILESS_MAIN(TestMoveMessage)
#include "tst_movemessage.moc"
