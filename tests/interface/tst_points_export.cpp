#include "project.h"

#include <random>

namespace {

QJsonObject inTheWholeExport(const QString& name) {
    ModuleObject* list = m("orca.project.point")->c("_list");
    const QJsonValue json = list ? list->exportToJson(true) : QJsonValue();
    for (const QJsonValue& element : json.toArray()) {
        if (element.isObject() && element.toObject().value("name").toString() == name)
            return element.toObject();
    }
    return QJsonObject();
}

} // namespace

// A look-up by name gives what a search through the export of the whole list would give.
class TestPointsExport : public ProjectTest {
    Q_OBJECT

private slots:
    void aLookUpIsASearchInTheExport_data() {
        QTest::addColumn<uint>("seed");
        for (uint seed = 1; seed <= 20; ++seed)
            QTest::addRow("%u", seed) << seed;
    }
    void aLookUpIsASearchInTheExport() {
        QFETCH(uint, seed);
        m_random.seed(seed);
        int found = 0;
        for (int round = 0; round < 100; ++round) {
            points()->clear(nullptr, false, true);
            for (int i = pick(5); i > 0; --i)
                makeRecord(new ModuleObject(ModuleObject::generateId(points())));
            for (const char* name : {"", "a", "b", "5", "true", "2024-05-06", "http://a"}) {
                const QJsonObject expected = inTheWholeExport(name);
                QCOMPARE(kiteInterface()->getPointObjDataByName(name), expected);
                found += !expected.isEmpty();
            }
        }
        QVERIFY2(found > 20, qPrintable(QString::number(found)));
    }

    void aListThatIsOneValueIsSearchedToo() {
        ModuleObject* parent = m("orca.project.point");
        parent->clear(nullptr, false, false);
        const QJsonObject wanted{{"name", "a"}, {"id", 2}};
        parent->set(nullptr, "_list", QJsonArray{5, QJsonObject{{"name", "b"}}, wanted});
        QVERIFY(!parent->c("_list")->isList());
        for (const char* name : {"a", "b", "c", ""})
            QCOMPARE(kiteInterface()->getPointObjDataByName(name), inTheWholeExport(name));
        QCOMPARE(kiteInterface()->getPointObjDataByName("a"), wanted);
        QCOMPARE(kiteInterface()->getVarObjDataByName("a"), QJsonObject());
        parent->c("_list")->set(nullptr, "child", 1);
        QCOMPARE(kiteInterface()->getPointObjDataByName("a"), QJsonObject());
    }

private:
    int pick(int count) { return int(m_random() % uint(count)); }

    QVariant value() {
        const QVariantList values{QVariant(),
                                  QVariant("a"),
                                  QVariant("b"),
                                  QVariant(""),
                                  QVariant(QString()),
                                  QVariant(5),
                                  QVariant("5"),
                                  QVariant(true),
                                  QVariant(QByteArray("a")),
                                  QVariant(QDate(2024, 5, 6)),
                                  QVariant(QUrl("http://a")),
                                  QVariant(QChar('a')),
                                  QVariant(QJsonValue("a")),
                                  QVariant(QJsonValue()),
                                  QVariant::fromValue(nullptr),
                                  QVariant(QStringList{"a"}),
                                  QVariant(QVariantList{"a"}),
                                  QVariant(QVariantMap{{"name", "a"}, {"id", 7}}),
                                  QVariant(QJsonObject{{"name", "b"}, {"id", 8}}),
                                  QVariant(QJsonObject{{"name", QJsonValue()}, {"id", 8}}),
                                  QVariant(QJsonObject{{"name", 5}, {"id", 9}})};
        return values.at(pick(values.size()));
    }

    void makeRecord(ModuleObject* record) {
        points()->ModuleObject::insertChild(-1, record);
        if (pick(3) == 0)
            record->setValue(nullptr, value());
        if (pick(8) == 0)
            ModuleObject::generateId(record);
        if (pick(5) == 0)
            return;
        record->append(nullptr, "id")->setValue(nullptr, pick(3) == 0 ? QVariant() : QVariant(pick(100)));
        if (pick(4) == 0)
            return;
        ModuleObject* name = record->append(nullptr, "name");
        name->setValue(nullptr, value());
        if (pick(6) == 0)
            name->set(nullptr, pick(2) == 0 ? "type" : "#0", value());
        if (pick(6) == 0)
            ModuleObject::generateId(name);
    }

    std::mt19937 m_random;
};

QTEST_GUILESS_MAIN(TestPointsExport)
#include "tst_points_export.moc"
