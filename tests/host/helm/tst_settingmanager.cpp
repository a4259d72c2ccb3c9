#include "helm/settingmanager.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class Settings : public QObject {
    Q_OBJECT

private slots:
    void theyComeFromTheFileInTheWorkingFolder_data();
    void theyComeFromTheFileInTheWorkingFolder();
    void whatIsNotSetIsTheFallback();
};

void Settings::theyComeFromTheFileInTheWorkingFolder_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("address") << QByteArray("server.ip=192.168.0.2") << "server.ip"
                             << "192.168.0.2";
    QTest::newRow("empty") << QByteArray("server.ip=") << "server.ip"
                           << "";
    QTest::newRow("comma") << QByteArray("workspace=/home/x/a, b") << "workspace"
                           << "/home/x/a, b";
    QTest::newRow("quoted") << QByteArray("workspace=\"/home/x/a,b\"") << "workspace"
                            << "/home/x/a,b";
    QTest::newRow("UTF-8") << QByteArray("workspace=/home/j\xc3\xbcrgen") << "workspace"
                           << QString("/home/j\u00fcrgen");
}

void Settings::theyComeFromTheFileInTheWorkingFolder() {
    QFETCH(QByteArray, line);
    QFETCH(QString, key);
    QFETCH(QString, value);
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    QFile file("settings.ini");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[General]\n" + line + '\n');
    file.close();
    const QString read = helm::SettingManager().getStr(key, "fallback");
    QDir::setCurrent(before);
    QCOMPARE(read, value);
}

void Settings::whatIsNotSetIsTheFallback() {
    QCOMPARE(helm::SettingManager().getStr("no.such", "fallback"), QString("fallback"));
}

QTEST_APPLESS_MAIN(Settings)
#include "tst_settingmanager.moc"
