#include "logfolder.h"

#include "kite/log.h"
#include "pendanttest/logwatch.h"

#include <QJsonValue>
#include <QPoint>
#include <QTest>
#include <QUrl>
#include <QVector>

#include <limits>
#include <memory>

namespace {

struct Constants {
    static const int limit = 5; // declared only: taking its address would not link
};

enum Plain { Zero, One };
enum class Scoped : quint8 { Five = 5 };
enum class Greatest : qulonglong { Value = std::numeric_limits<qulonglong>::max() };
enum class Least : qlonglong { Value = std::numeric_limits<qlonglong>::min() };
enum class Truth : bool { Yes = true };
enum class Letter : char { C = 'c' };

QString text(const QByteArray& bytes) {
    return QString::fromUtf8(bytes);
}

} // namespace

// What an item prints as. Each is given to all three classes.
class TestValues : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_watch = std::make_unique<pendanttest::LogWatch>();
        m_folder = std::make_unique<LogFolder>();
    }
    void cleanup() {
        m_folder.reset();
        m_watch.reset();
    }

    void aTextInQuotesIsText() {
        expect("text", [](auto& log) { log << "text"; });
        expect("", [](auto& log) { log << ""; });
        expect("two parts", [](auto& log) {
            log << "two "
                << "parts";
        });
    }

    void aPointerToCharactersIsText() {
        const char* constant = "constant";
        char writable[] = "writable";
        char* pointer = writable;
        const char* const fixed = "fixed";
        expect("constant", [&](auto& log) { log << constant; });
        expect("writable", [&](auto& log) { log << writable; });
        expect("writable", [&](auto& log) { log << pointer; });
        expect("fixed", [&](auto& log) { log << fixed; });
        expect(text("焊"), [](auto& log) { log << "焊"; });
    }

    void aNullTextIsNoText() {
        const char* none = nullptr;
        char* noneToo = nullptr;
        expect("ab", [&](auto& log) { log << "a" << none << noneToo << "b"; });
        expect("ab", [&](auto& log) { log << "a" << QString() << QByteArray() << QLatin1String() << "b"; });
    }

    void integersAreNumbers() {
        expect("5", [](auto& log) { log << 5; });
        expect("0", [](auto& log) { log << 0; });
        expect("-1", [](auto& log) { log << -1; });
        expect("0", [](auto& log) { log << 0u; });
        expect("0", [](auto& log) { log << 0L; });
        expect("0", [](auto& log) { log << 0ULL; });
        expect("5", [](auto& log) { log << Constants::limit; });
        const int zero = 0;
        expect("0", [&](auto& log) { log << zero; });
    }

    void integersOfEveryWidthAreNumbers() {
        expect("-128", [](auto& log) { log << std::numeric_limits<qint8>::min(); });
        expect("255", [](auto& log) { log << std::numeric_limits<quint8>::max(); });
        expect("-32768", [](auto& log) { log << std::numeric_limits<short>::min(); });
        expect("65535", [](auto& log) { log << std::numeric_limits<ushort>::max(); });
        expect("4294967295", [](auto& log) { log << std::numeric_limits<uint>::max(); });
        expect("-9223372036854775808", [](auto& log) { log << std::numeric_limits<long>::min(); });
        expect("18446744073709551615", [](auto& log) { log << std::numeric_limits<ulong>::max(); });
        expect("-9223372036854775808", [](auto& log) { log << std::numeric_limits<qlonglong>::min(); });
        expect("18446744073709551615", [](auto& log) { log << std::numeric_limits<qulonglong>::max(); });
        expect("3", [](auto& log) { log << QVector<int>(3).size() << QString(); });
        expect("4", [](auto& log) { log << sizeof(int); });
    }

    void truthIsWords() {
        expect("true", [](auto& log) { log << true; });
        expect("false", [](auto& log) { log << false; });
    }

    void fractionsAreWrittenShort() {
        expect("2.5", [](auto& log) { log << 2.5; });
        expect("0.1", [](auto& log) { log << 0.1; });
        expect("2.5", [](auto& log) { log << 2.5f; });
        expect("0.25", [](auto& log) { log << 0.25L; });
        expect("0", [](auto& log) { log << 0.0; });
    }

    void charactersAreThemselves() {
        expect("c", [](auto& log) { log << 'c'; });
        expect("c", [](auto& log) { log << QChar('c'); });
        expect(text("焊"), [](auto& log) { log << QChar(0x710a); });
    }

    void enumeratorsAreTheirNumbers() {
        expect("0", [](auto& log) { log << Zero; });
        expect("1", [](auto& log) { log << One; });
        expect("5", [](auto& log) { log << Scoped::Five; });
        expect("18446744073709551615", [](auto& log) { log << Greatest::Value; });
        expect("-9223372036854775808", [](auto& log) { log << Least::Value; });
        expect("1", [](auto& log) { log << Truth::Yes; });
        expect("99", [](auto& log) { log << Letter::C; });
    }

    void textsOfQtAreText() {
        expect("text", [](auto& log) { log << QString("text"); });
        expect("text", [](auto& log) { log << QStringLiteral("text"); });
        expect("text", [](auto& log) { log << QLatin1String("text"); });
        expect(text("焊"), [](auto& log) { log << QByteArray("焊"); });
        expect("ab", [](auto& log) { log << QString("a") + "b"; });
        expect("", [](auto& log) { log << QString(); });
    }

    void aVariantIsItsText() {
        expect("5", [](auto& log) { log << QVariant(5); });
        expect("a", [](auto& log) { log << QVariant("a"); });
        expect("", [](auto& log) { log << QVariant(); });
        expect("", [](auto& log) { log << QVariant(QPoint(1, 2)); });
        expect("true", [](auto& log) { log << QVariant(true); });
    }

    void whatAVariantTakesIsItsText() {
        expect("a", [](auto& log) { log << QJsonValue("a"); });
        expect("1.5", [](auto& log) { log << QJsonValue(1.5).toVariant(); });
        expect("http://a/b", [](auto& log) { log << QUrl("http://a/b"); });
        expect("2025-03-14", [](auto& log) { log << QDate(2025, 3, 14); });
    }

    void aListHasNoText() {
        expect("", [](auto& log) { log << QStringList({"a", "b"}); });
        expect("", [](auto& log) { log << QVariantList({1, 2}); });
        expect("", [](auto& log) { log << QVariantMap({{"a", 1}}); });
        expect("a", [](auto& log) { log << QStringList("a"); });
    }

    void aPointerIsItsAddress() {
        const auto pointer = reinterpret_cast<void*>(quintptr(0xabc123));
        const auto object = reinterpret_cast<QObject*>(quintptr(0xdef456));
        const auto numbers = reinterpret_cast<const int*>(quintptr(0xfff));
        expect("0xabc123", [&](auto& log) { log << pointer; });
        expect("0xdef456", [&](auto& log) { log << object; });
        expect("0xfff", [&](auto& log) { log << numbers; });
        expect("0xabc123", [&](auto& log) { log << static_cast<const void*>(pointer); });
    }

    void aPointerToWhatIsVolatileIsItsAddress() {
        const auto number = reinterpret_cast<volatile int*>(quintptr(0xabc123));
        const auto constant = reinterpret_cast<const volatile void*>(quintptr(0xdef456));
        const auto letters = reinterpret_cast<volatile char*>(quintptr(0xfff));
        expect("0xabc123", [&](auto& log) { log << number; });
        expect("0xdef456", [&](auto& log) { log << constant; });
        expect("0xfff", [&](auto& log) { log << letters; });
        expect("0x0", [](auto& log) { log << static_cast<volatile int*>(nullptr); });
    }

    void noPointerIsTheAddressZero() {
        expect("0x0", [](auto& log) { log << nullptr; });
        expect("0x0", [](auto& log) { log << static_cast<QObject*>(nullptr); });
    }

    void textEndsAtANulCharacter() {
        const QString cut = QString("ab") + QChar(0) + "cd";
        expect("ab", [&](auto& log) { log << cut; });
        expect("ab", [&](auto& log) { log << QVariant(cut); });
        expect("abef", [&](auto& log) { log << cut << "ef"; });
        expect("ab", [](auto& log) { log << "ab\0cd"; });
        expect("ab", [](auto& log) { log << QByteArray("ab\0cd", 5); });
        expect("ab", [](auto& log) { log << QLatin1String("ab\0cd", 5); });
        expect("ab", [](auto& log) { log << "a" << '\0' << QChar(0) << "b"; });
        expect("", [](auto& log) { log << QString(QChar(0)) + "cd"; });
    }

    void itemsCanBeChained() {
        expect("a1truec0x02.5", [](auto& log) { log << "a" << 1 << true << 'c' << nullptr << QVariant(2.5); });
    }

private:
    template <typename Write> void expect(const QString& wanted, Write write) {
        const QString path = m_folder->path("values");
        m_watch->forgetLines();
        {
            kite::QLog log("", "", "");
            write(log);
        }
        {
            kite::FLog log("", "", path, "log");
            write(log);
        }
        {
            kite::QFLog log("", "", "", path, "log");
            write(log);
        }
        const QString onConsole = wanted + "\x1b[0m";
        QCOMPARE(m_watch->lines(), QStringList({onConsole, onConsole}));
        QCOMPARE(m_folder->lines(), QList<QByteArray>({wanted.toUtf8(), wanted.toUtf8()}));
        QVERIFY(QFile::remove(m_folder->path(m_folder->names().value(0))));
    }

    std::unique_ptr<pendanttest::LogWatch> m_watch;
    std::unique_ptr<LogFolder> m_folder;
};

QTEST_APPLESS_MAIN(TestValues)
#include "tst_logging_values.moc"
