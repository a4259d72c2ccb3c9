#include "includetarget.h"

#include <QDir>
#include <QFile>
#include <QtTest>

class PublicHeaders : public QObject {
    Q_OBJECT

private slots:
    void kiteHIncludesEveryPublicHeader();
};

void PublicHeaders::kiteHIncludesEveryPublicHeader() {
    const QDir folder(KITE_SOURCE_DIR "/include/kite");
    QFile umbrella(folder.filePath("kite.h"));
    QVERIFY(umbrella.open(QIODevice::ReadOnly));

    QStringList included{"kite.h"};
    for (const Include& include : includesIn("kite.h", QString::fromUtf8(umbrella.readAll())))
        included << include.name.section('/', 1);
    included.sort();

    QCOMPARE(included.join(' '), folder.entryList({"*.h"}, QDir::Files, QDir::Name).join(' '));
}

QTEST_GUILESS_MAIN(PublicHeaders)
#include "tst_publicheaders.moc"
