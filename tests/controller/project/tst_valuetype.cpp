#include "../contents.h"

#include "controller/project/valuetype.h"

#include <QTest>

using controller::fits;
using controller::textOf;
using controller::whatFits;

namespace {

QJsonValue json(const char* text) {
    return QJsonDocument::fromJson(QByteArray("[") + text + ']').array().first();
}

} // namespace

class TestValueType : public QObject {
    Q_OBJECT

private slots:
    void aTypeTakesItsValues_data() {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("isTaken");
        const auto row = [](const char* type, const char* value, bool isTaken) {
            QTest::addRow("%s %s", type, value) << type << QByteArray(value) << isTaken;
        };
        row("int", "3", true);
        row("int", "-2147483648", true);
        row("int", "2147483647", true);
        row("int", "2147483648", false);
        row("int", "-2147483649", false);
        row("int", "3.5", false);
        row("int", "\"3\"", false);
        row("int", "true", false);
        row("int", "null", false);
        row("double", "3", true);
        row("double", "3.5", true);
        row("double", "\"3.5\"", false);
        row("bool", "false", true);
        row("bool", "0", false);
        row("QString", "\"\"", true);
        row("QString", "0", false);
        row("QVariantList", "[1]", true);
        row("other", "null", true);
    }

    void aTypeTakesItsValues() {
        QFETCH(QString, type);
        QFETCH(QByteArray, value);
        QTEST(fits(type, json(value.constData())), "isTaken");
    }

    void aTypeSaysWhatItTakes() {
        QCOMPARE(whatFits("int"), "a whole number");
        QCOMPARE(whatFits("double"), "a number");
        QCOMPARE(whatFits("bool"), "true or false");
        QCOMPARE(whatFits("QString"), "a text");
        QCOMPARE(whatFits("QVariantList"), "any value");
    }

    void aValueIsWrittenInFull_data() {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("int") << QByteArray("1000000") << "1000000";
        QTest::newRow("negative") << QByteArray("-3") << "-3";
        QTest::newRow("double") << QByteArray("0.1") << "0.1";
        QTest::newRow("many places") << QByteArray("3.141592653589793") << "3.141592653589793";
        QTest::newRow("bool") << QByteArray("true") << "true";
        QTest::newRow("text") << QByteArray("\"a \\\"b\\\"\"") << "a \"b\"";
        QTest::newRow("list") << QByteArray("[1, [2]]") << "[1,[2]]";
        QTest::newRow("object") << QByteArray(R"({"a": {"b": 1}})") << R"({"a":{"b":1}})";
        QTest::newRow("nothing") << QByteArray("null") << "";
    }

    void aValueIsWrittenInFull() {
        QFETCH(QByteArray, value);
        QTEST(textOf(json(value.constData())), "text");
    }
};

QTEST_GUILESS_MAIN(TestValueType)
#include "tst_valuetype.moc"
