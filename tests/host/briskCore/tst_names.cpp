#include "brisk/moduleobject.h"
#include "names.h"
#include "pathreader.h"

#include <QHash>
#include <QTest>

using brisk::ModuleObject;

class Names : public QObject {
    Q_OBJECT

private slots:
    void anItemsNameHoldsItsNumber_data();
    void anItemsNameHoldsItsNumber();
    void namesAreComparedInFull_data();
    void namesAreComparedInFull();
    void equalNamesAreOneString();
    void aNameIsCopiedFromWhereItCame();
    void aNameThatIsHeldOutlivesTheSweep();
    void aPathIsReadPartByPart_data();
    void aPathIsReadPartByPart();
    void siblingsOfEqualHashAreToldApart();
    void siblingsOfEqualTagAreToldApart();
};

void Names::anItemsNameHoldsItsNumber_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    for (const int number : {0, 7, 10, 123456789})
        QTest::addRow("#%d", number) << brisk::itemName(number) << number;
    for (const char* name : {"", "#", "7", "#07", "#-1", "#1a", "#1.", "##1", "[0][0][0]", "#1234567890", "# 1"})
        QTest::newRow(name) << QString(name) << -1;
}

void Names::anItemsNameHoldsItsNumber() {
    QFETCH(QString, name);
    QTEST(brisk::itemNumber(name), "number");
}

void Names::namesAreComparedInFull_data() {
    QTest::addColumn<int>("size");
    for (int size = 1; size <= 13; ++size)
        QTest::addRow("%d characters", size) << size;
}

void Names::namesAreComparedInFull() {
    QFETCH(int, size);
    const QString name(size, 'a');
    QVERIFY(brisk::sameName(name, QString(size, 'a')));
    QVERIFY(!brisk::sameName(name, QString(size + 1, 'a')));
    for (int i = 0; i < size; ++i) {
        QString other = name;
        other[i] = 'b';
        QVERIFY(!brisk::sameName(name, other));
        QVERIFY(brisk::nameHash(name) != brisk::nameHash(other));
    }
}

void Names::equalNamesAreOneString() {
    const ModuleObject a(QString("inner_").append("pos"));
    const ModuleObject b(QString("inner").append("_pos"));
    QCOMPARE(a.name(), QString("inner_pos"));
    QCOMPARE(a.name().constData(), b.name().constData());
}

void Names::aNameIsCopiedFromWhereItCame() {
    const QString literal = QStringLiteral("from a plugin that is unloaded");
    const ModuleObject node(literal);
    QCOMPARE(node.name(), literal);
    QVERIFY(node.name().constData() != literal.constData());
}

void Names::aNameThatIsHeldOutlivesTheSweep() {
    const ModuleObject kept("kept");
    const QString held = ModuleObject("held for a while").name();
    for (int i = 0; i < 50000; ++i)
        const ModuleObject passing(QString("passing%1").arg(i));
    QCOMPARE(ModuleObject("kept").name().constData(), kept.name().constData());
    QCOMPARE(ModuleObject("held for a while").name().constData(), held.constData());
    QCOMPARE(ModuleObject("passing7").name(), QString("passing7"));
}

void Names::aPathIsReadPartByPart_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("parts");
    QTest::newRow("empty") << "" << QStringList{};
    QTest::newRow("one") << "orca" << QStringList{"orca"};
    QTest::newRow("three") << "a.bc.def" << QStringList{"a", "bc", "def"};
    QTest::newRow("dot alone") << "." << QStringList{"", ""};
    QTest::newRow("at the ends") << ".a." << QStringList{"", "a", ""};
    QTest::newRow("in a row") << "a..b" << QStringList{"a", "", "b"};
}

void Names::aPathIsReadPartByPart() {
    QFETCH(QString, path);
    QFETCH(QStringList, parts);
    brisk::PathReader reader(path);
    QStringList read;
    while (reader.next()) {
        read << reader.name().toString();
        QCOMPARE(reader.atEnd(), read.size() == parts.size());
    }
    QCOMPARE(read, parts);
}

void Names::siblingsOfEqualHashAreToldApart() {
    ModuleObject parent("parent");
    for (int i = 0; i < 20; ++i)
        parent.append(nullptr, QString("filler%1").arg(i));
    QHash<uint, QString> names;
    QString first, second;
    // Of this many names some share one of the 2^32 hashes with all but certainty.
    for (int i = 0; second.isEmpty() && i < 1000000; ++i) {
        const QString name = QString("n%1").arg(i);
        first = names.value(brisk::nameHash(name));
        if (!first.isEmpty())
            second = name;
        names.insert(brisk::nameHash(name), name);
    }
    QVERIFY2(!second.isEmpty(), "no two names of equal hash were found");
    ModuleObject* a = parent.append(nullptr, first);
    QVERIFY(!parent.c(second));
    ModuleObject* b = parent.append(nullptr, second);
    QVERIFY(a != b);
    QCOMPARE(parent.c(first), a);
    QCOMPARE(parent.c(second), b);
    QVERIFY(parent.removeChild(a));
    QVERIFY(!parent.c(first));
    QCOMPARE(parent.c(second), b);
}

void Names::siblingsOfEqualTagAreToldApart() {
    ModuleObject parent("parent");
    QCOMPARE(brisk::nameTag(QStringLiteral("axxb")), brisk::nameTag(QStringLiteral("ayyb")));
    ModuleObject* x = parent.child("axxb");
    QVERIFY(!parent.c("ayyb"));
    ModuleObject* y = parent.child("ayyb");
    QCOMPARE(parent.c("axxb"), x);
    QCOMPARE(parent.c("ayyb"), y);
}

QTEST_APPLESS_MAIN(Names)
#include "tst_names.moc"
