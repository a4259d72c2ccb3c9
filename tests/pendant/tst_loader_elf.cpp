#include "plugins/elf.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <elf.h>

using pendant::ElfHeader;

namespace {

// The head of a shared object for this machine, with fields changed.
QByteArray head(int machine, int type = ET_DYN, int elfClass = ELFCLASS64, int byteOrder = ELFDATA2LSB) {
    QByteArray bytes(ElfHeader::size, '\0');
    bytes.replace(0, SELFMAG, ELFMAG);
    bytes[EI_CLASS] = static_cast<char>(elfClass);
    bytes[EI_DATA] = static_cast<char>(byteOrder);
    const int low = byteOrder == ELFDATA2LSB ? 0 : 1;
    bytes[16 + low] = static_cast<char>(type & 0xff);
    bytes[17 - low] = static_cast<char>(type >> 8);
    bytes[18 + low] = static_cast<char>(machine & 0xff);
    bytes[19 - low] = static_cast<char>(machine >> 8);
    return bytes;
}

#if defined(__x86_64__)
const int own = EM_X86_64;
const int other = EM_AARCH64;
const char otherName[] = "is built for 64-bit Arm (aarch64); this pendant runs on x86-64";
#else
const int own = EM_AARCH64;
const int other = EM_X86_64;
const char otherName[] = "is built for x86-64; this pendant runs on 64-bit Arm (aarch64)";
#endif

} // namespace

class TestElf : public QObject {
    Q_OBJECT

private slots:
    void theHeadTellsWhatIsWrong_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("problem");
        const QString ours = own == EM_X86_64 ? "x86-64" : "64-bit Arm (aarch64)";
        QTest::newRow("a shared object of this machine") << head(own) << "";
        QTest::newRow("nothing") << QByteArray() << "is empty";
        QTest::newRow("text") << QByteArray("#!/bin/sh\necho hello\n") << "is not an ELF file";
        QTest::newRow("almost") << QByteArray("\177ELG").leftJustified(20, '\0') << "is not an ELF file";
        QTest::newRow("cut off") << head(own).left(19) << "is cut off in its ELF header";
        QTest::newRow("the magic only") << QByteArray(ELFMAG) << "is cut off in its ELF header";
        QTest::newRow("the other machine") << head(other) << otherName;
        QTest::newRow("32-bit Arm") << head(EM_ARM, ET_DYN, ELFCLASS32)
                                    << "is built for 32-bit Arm; this pendant runs on " + ours;
        QTest::newRow("32-bit x86") << head(EM_386, ET_DYN, ELFCLASS32)
                                    << "is built for 32-bit x86; this pendant runs on " + ours;
        QTest::newRow("an unusual machine, big-endian")
            << head(21, ET_DYN, ELFCLASS64, ELFDATA2MSB)
            << "is built for a machine of type 21; this pendant runs on " + ours;
        QTest::newRow("32 bits of this machine")
            << head(own, ET_DYN, ELFCLASS32) << "is a 32-bit file; this pendant needs 64-bit ones";
        QTest::newRow("big-endian of this machine") << head(own, ET_DYN, ELFCLASS64, ELFDATA2MSB)
                                                    << "is a big-endian file; this pendant needs little-endian ones";
        QTest::newRow("an object file") << head(own, ET_REL) << "is not a shared object";
        QTest::newRow("a program") << head(own, ET_EXEC) << "is not a shared object";
    }

    void theHeadTellsWhatIsWrong() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, problem);
        QCOMPARE(ElfHeader(bytes).problem(), problem);
    }

    void aRealPluginHasNoProblem() { QCOMPARE(pendant::sharedObjectProblem(PLUGIN_fixture_pair), QString()); }

    void aRealPluginOfAnotherMachineIsTold() {
        QFile plugin(PLUGIN_fixture_pair);
        QVERIFY(plugin.open(QIODevice::ReadOnly));
        QByteArray bytes = plugin.readAll();
        bytes.replace(0, ElfHeader::size, bytes.left(18) + head(other).mid(18, 2));
        const QTemporaryDir folder;
        QFile copy(folder.filePath("libother.so"));
        QVERIFY(copy.open(QIODevice::WriteOnly));
        copy.write(bytes);
        copy.close();
        QCOMPARE(pendant::sharedObjectProblem(copy.fileName()), QString(otherName));
    }

    void aFileThatIsShorterThanItsSegmentsIsTold() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("libcut.so");
        QVERIFY(QFile::copy(PLUGIN_fixture_pair, path));
        const qint64 whole = QFile(path).size();
        QVERIFY(QFile::resize(path, 5000));
        const QString problem = pendant::sharedObjectProblem(path);
        const auto match = QRegularExpression("\\Ais cut off: it has 5000 bytes of at least (\\d+)\\z").match(problem);
        QVERIFY2(match.hasMatch(), qPrintable(problem));
        const qint64 needed = match.captured(1).toLongLong();
        QVERIFY(needed > 5000 && needed <= whole);
        QVERIFY(QFile::resize(path, needed - 1));
        QVERIFY(!pendant::sharedObjectProblem(path).isEmpty());
        QVERIFY(QFile::resize(path, needed));
        QCOMPARE(pendant::sharedObjectProblem(path), QString());
    }

    // A file may be stripped of its table of sections.
    void theSegmentsTellAlsoWithoutSections() {
        QFile plugin(PLUGIN_fixture_pair);
        QVERIFY(plugin.open(QIODevice::ReadOnly));
        QByteArray bytes = plugin.readAll();
        bytes.replace(40, 8, QByteArray(8, '\0')); // the table's place
        bytes.replace(60, 2, QByteArray(2, '\0')); // the number of entries
        const QTemporaryDir folder;
        QFile copy(folder.filePath("libstripped.so"));
        QVERIFY(copy.open(QIODevice::WriteOnly));
        copy.write(bytes);
        copy.close();
        QCOMPARE(pendant::sharedObjectProblem(copy.fileName()), QString());
        QVERIFY(copy.resize(5000));
        const QString problem = pendant::sharedObjectProblem(copy.fileName());
        QVERIFY2(problem.startsWith("is cut off: it has 5000 bytes of at least "), qPrintable(problem));
    }

    void aTableOfSegmentsBeyondTheEndIsTold() {
        QByteArray bytes = head(own).leftJustified(64, '\0');
        bytes[32] = '\x7f'; // the table's place
        bytes[54] = 56;     // the size of an entry
        bytes[56] = 3;      // the number of entries
        const QTemporaryDir folder;
        QFile file(folder.filePath("libtable.so"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        QCOMPARE(pendant::sharedObjectProblem(file.fileName()), QString("is cut off: it has 64 bytes of at least 295"));
    }

    void aFileThatCannotBeOpenedIsTold() {
        QCOMPARE(pendant::sharedObjectProblem("/nowhere/liba.so"),
                 QString("cannot be read: No such file or directory"));
    }
};

QTEST_APPLESS_MAIN(TestElf)
#include "tst_loader_elf.moc"
