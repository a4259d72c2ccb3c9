#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

/// Teaches points of the robot project and changes them. No widgets.
///
/// What can fail says why: a sentence for people, empty when all went well.
class Teacher : public QObject {
    Q_OBJECT

public:
    enum class Kind { Joints, Pose };

    explicit Teacher(QObject* parent = nullptr);

    QStringList names() const;
    /// Whether there is a point of exactly that name, and whether it holds joints or a pose.
    bool has(const QString& name, Kind kind) const;
    /// The position for a table: "x 1,200.0  y 0.0  z 850.0" or "A1 0.0  A2 -90.0 ...".
    QString positionText(const QString& name) const;

    QString teach(const QString& name, Kind kind);
    QString lift(const QString& name, double mm);
    /// How far apart two poses are, in mm; the sentence goes into `result`.
    QString compare(const QString& first, const QString& second, QString* result) const;

signals:
    void changed();
    void taught(const QString& name);

private:
    QVector<double> joints(const QString& name) const;
    static bool canTeach(const QString& tool, const QString& wobj);
};
