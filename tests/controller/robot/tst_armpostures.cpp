#include "controller/robot/armpostures.h"

#include "controller/robot/pose.h"
#include "frames.h"

#include <QTest>

#include <random>

using controller::Arm;
using controller::ArmLengths;
using controller::Joints;

namespace {

const ArmLengths standard{450, 150, 700, 115, 820, 110};

double jointsApart(const Joints& one, const Joints& other) {
    double most = 0;
    for (size_t i = 0; i < one.size(); ++i)
        most = std::fmax(most, std::abs(std::remainder(one[i] - other[i], 360)));
    return most;
}

double leftTo(const KDL::Frame& target, const KDL::Frame& frame) {
    return std::fmax((target.p - frame.p).Norm(), 1000 * apart(target.M, frame.M));
}

bool contains(const std::vector<Joints>& postures, const Joints& joints) {
    return std::any_of(postures.begin(), postures.end(),
                       [&joints](const Joints& posture) { return jointsApart(posture, joints) < 1e-4; });
}

/// Joints of which none is near a place where two postures become one.
Joints randomJoints(std::mt19937* random, bool isRedundant) {
    std::uniform_real_distribution<double> any(-170, 170);
    std::uniform_real_distribution<double> roll(-40, 40);
    std::uniform_real_distribution<double> wrist(10, 120);
    Joints joints{any(*random), any(*random), any(*random), any(*random), wrist(*random), any(*random), 0};
    if (!isRedundant)
        return joints;
    return {joints[0], joints[1], roll(*random), joints[2], joints[3], joints[4], joints[5]};
}

bool isOverItsFoot(const Arm& arm, const Joints& joints) {
    const KDL::Vector wrist = arm.wristCentre(joints);
    return std::hypot(wrist.x(), wrist.y()) < 150;
}

} // namespace

class TestArmPostures : public QObject {
    Q_OBJECT

private slots:
    void everyPostureIsFoundAgain_data() {
        QTest::addColumn<int>("joints");
        QTest::addColumn<double>("elbowOffset");
        QTest::newRow("six") << 6 << 115.0;
        QTest::newRow("six, the elbow the other way") << 6 << -50.0;
        QTest::newRow("six, straight") << 6 << 0.0;
        QTest::newRow("seven") << 7 << 115.0;
    }

    void everyPostureIsFoundAgain() {
        QFETCH(int, joints);
        QFETCH(double, elbowOffset);
        ArmLengths lengths = standard;
        lengths.elbowOffset = elbowOffset;
        const Arm arm(lengths, joints);
        std::mt19937 random(20240607);
        int found = 0;
        const int tries = 300;
        for (int i = 0; i < tries; ++i) {
            Joints wanted = randomJoints(&random, joints == 7);
            while (joints == 7 && isOverItsFoot(arm, wanted))
                wanted = randomJoints(&random, true);
            const KDL::Frame flange = arm.flange(wanted);
            std::vector<Joints> postures;
            for (Joints near : posturesNear(arm, flange, wanted)) {
                if (arm.reach(flange, &near))
                    postures.push_back(near);
            }
            QVERIFY(postures.size() <= 8);
            for (const Joints& posture : postures)
                QVERIFY(leftTo(flange, arm.flange(posture)) < 1e-3);
            found += contains(postures, wanted) ? 1 : 0;
        }
        QCOMPARE(found, tries);
    }

    void awayFromItsFootTheyNeedNoSearch_data() {
        QTest::addColumn<int>("joints");
        QTest::newRow("six") << 6;
        QTest::newRow("seven") << 7;
    }

    void awayFromItsFootTheyNeedNoSearch() {
        QFETCH(int, joints);
        const Arm arm(standard, joints);
        std::mt19937 random(7);
        for (int i = 0; i < 100; ++i) {
            const Joints wanted = randomJoints(&random, joints == 7);
            if (isOverItsFoot(arm, wanted))
                continue;
            const KDL::Frame flange = arm.flange(wanted);
            const std::vector<Joints> postures = posturesNear(arm, flange, wanted);
            QVERIFY(contains(postures, wanted));
            for (const Joints& posture : postures)
                QVERIFY(leftTo(flange, arm.flange(posture)) < 1e-5);
        }
    }

    void whereTheArmDoesNotReachThereIsNone() {
        const Arm arm(standard, 6);
        QVERIFY(posturesNear(arm, KDL::Frame(KDL::Vector(3000, 0, 500)), {}).empty());
        // Too near to the shoulder: the elbow cannot bend so far.
        ArmLengths upright = standard;
        upright.shoulderOffset = 0;
        const KDL::Frame atTheShoulder(KDL::Rotation::RotY(M_PI / 2), KDL::Vector(150, 0, 450));
        QVERIFY(posturesNear(Arm(upright, 6), atTheShoulder, {}).empty());
    }

    void aStretchedWristKeepsItsFirstJointOrTurnsInParts() {
        const Arm arm(standard, 6);
        const Joints stretched{10, 20, 30, 33, 0, -12, 0};
        const std::vector<Joints> postures = posturesNear(arm, arm.flange(stretched), stretched);
        QVERIFY(contains(postures, stretched));
        QVERIFY(contains(postures, {10, 20, 30, 45, 0, -24, 0}));
        QVERIFY(contains(postures, {10, 20, 30, 0, 0, 21, 0}));
    }

    void overItsFootItKeepsItsFirstJoint() {
        const Arm arm(standard, 6);
        const KDL::Frame flange(KDL::Rotation::RotY(1),
                                KDL::Rotation::RotY(1) * KDL::Vector(0, 0, 110) + KDL::Vector(0, 0, 1300));
        const std::vector<Joints> postures = posturesNear(arm, flange, {70, 0, 0, 0, 0, 0, 0});
        QVERIFY(postures.size() >= 4);
        for (const Joints& posture : postures) {
            QCOMPARE(posture[0], 70.0);
            QVERIFY(leftTo(flange, arm.flange(posture)) < 1e-6);
        }
    }
};

QTEST_GUILESS_MAIN(TestArmPostures)
#include "tst_armpostures.moc"
