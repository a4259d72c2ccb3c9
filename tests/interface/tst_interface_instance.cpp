#include "kite/interfacemanager.h"

#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

// The first case has the process's first call.
class TestInstance : public QObject {
    Q_OBJECT

private slots:
    void theFirstCallMayComeFromAnyThread() {
        std::vector<kite::InterfaceManager*> seen(8);
        std::vector<std::thread> threads;
        std::atomic<bool> go{false};
        for (auto& manager : seen) {
            threads.emplace_back([&] {
                while (!go)
                    std::this_thread::yield();
                manager = kite::kiteInterface();
            });
        }
        go = true;
        for (std::thread& thread : threads)
            thread.join();
        for (const auto* manager : seen) {
            QVERIFY(manager);
            QCOMPARE(manager, kite::kiteInterface());
        }
    }

    void itHasNoParent() { QVERIFY(!kite::kiteInterface()->parent()); }
};

QTEST_GUILESS_MAIN(TestInstance)
#include "tst_interface_instance.moc"
