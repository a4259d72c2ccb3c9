#include "controller/robot/movemessage.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>
#include <vector>

namespace controller {

namespace {

const double mmOrDegrees = 1000;
const int quadrantsSent = 7;

MoveError wrong(MoveError::Code code, const QString& text) {
    return {code, text, QString()};
}

/// \return false when they are not `count` numbers
bool readNumbers(const QJsonValue& json, int count, std::vector<double>* numbers) {
    const QJsonArray array = json.toArray();
    for (const QJsonValue& number : array) {
        if (!number.isDouble())
            return false;
        numbers->push_back(number.toDouble());
    }
    return array.size() == count;
}

bool areWhole(const std::vector<double>& numbers) {
    for (const double number : numbers) {
        if (std::abs(number) > 1000 || std::floor(number) < number)
            return false;
    }
    return true;
}

MoveError readPlace(const QJsonObject& point, Pose* pose) {
    std::vector<double> at;
    if (!point.contains("trans"))
        return wrong(MoveError::NoTarget, QStringLiteral("The move has no target: \"point.trans\" is missing."));
    if (!readNumbers(point.value("trans"), 3, &at))
        return wrong(MoveError::NoTarget, QStringLiteral("The move has no target: \"point.trans\" must be a list of "
                                                         "three numbers, x, y and z in metres."));
    pose->x = at[0] * mmOrDegrees;
    pose->y = at[1] * mmOrDegrees;
    pose->z = at[2] * mmOrDegrees;
    return {};
}

MoveError readOrientation(const QJsonObject& point, Pose* pose) {
    std::vector<double> angles;
    if (!point.contains("rot"))
        return wrong(MoveError::NoOrientation,
                     QStringLiteral("The target of the move has no orientation: \"point.rot\" is missing."));
    if (!readNumbers(point.value("rot"), 3, &angles))
        return wrong(MoveError::NoOrientation,
                     QStringLiteral("The target of the move has no orientation: \"point.rot\" must be a list of three "
                                    "numbers, a, b and c in thousands of degrees."));
    pose->a = angles[0] * mmOrDegrees;
    pose->b = angles[1] * mmOrDegrees;
    pose->c = angles[2] * mmOrDegrees;
    return {};
}

MoveError readConfiguration(const QJsonObject& point, std::optional<Configuration>* configuration) {
    if (!point.contains("conf"))
        return {};
    std::vector<double> conf;
    if (!readNumbers(point.value("conf"), quadrantsSent + 1, &conf) || !areWhole(conf))
        return wrong(MoveError::BadConfiguration,
                     QStringLiteral("The target of the move has no configuration: \"point.conf\" must be a list of "
                                    "eight whole numbers, cf1 to cf7 and cfx."));
    Configuration read;
    for (size_t i = 0; i < read.quadrants.size(); ++i)
        read.quadrants.at(i) = int(conf.at(i));
    read.branches = int(conf.back());
    *configuration = read;
    return {};
}

MoveError readSpeed(const QJsonObject& trajectory, MoveCommand* command) {
    const QJsonValue speed = trajectory.value("speed");
    if (!speed.isDouble())
        return wrong(MoveError::BadSpeed, QStringLiteral("The move has no speed: \"traj.speed\" must be a number."));
    command->speed = speed.toDouble() * (command->way == MoveCommand::Linear ? mmOrDegrees : 1);
    return {};
}

} // namespace

MoveError readMove(const QJsonValue& sent, MoveCommand::Way way, MoveCommand* command) {
    const QJsonObject point = sent.toObject().value("point").toObject();
    MoveCommand read;
    Pose pose;
    read.way = way;
    MoveError error = readPlace(point, &pose);
    if (!error)
        error = readOrientation(point, &pose);
    if (!error)
        error = readConfiguration(point, &read.configuration);
    if (!error)
        error = readSpeed(sent.toObject().value("traj").toObject(), &read);
    if (error)
        return error;
    read.target.pose = frameOf(pose);
    *command = read;
    return {};
}

} // namespace controller
