#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// The pendant is started on folders of plugins and walks its tour.
class TestTour : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(m_folder->isValid());
        QVERIFY(QDir(m_folder->path()).mkpath("plugins"));
    }

    void cleanup() { m_folder.reset(); }

    void everythingOfAPluginIsWalkedAndNothingElseIsPressed() {
        copy({PLUGIN_fixture_touring});
        QCOMPARE(tour(), 0);
        checkPictures();
        checkTranscript();
        QVERIFY(!transcript().contains("The tour must not press this."));
        QVERIFY(!transcript().contains("The robot moved."));
    }

    void aSecondTourGivesTheSameNamesAndReplacesTheFirst() {
        copy({PLUGIN_fixture_touring, PLUGIN_fixture_pair});
        QCOMPARE(tour(), 0);
        const QStringList names = pictureNames();
        QFile stale(result("99-page-gone.png"));
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.close();
        QFile other(result("holiday.png"));
        QVERIFY(other.open(QIODevice::WriteOnly));
        other.close();
        QCOMPARE(tour(), 0);
        QCOMPARE(pictureNames(), names);
        QVERIFY(other.exists());
    }

    void aPluginThatThrowsMakesTheTourFail_data() {
        QTest::addColumn<QString>("plugin");
        QTest::addColumn<QString>("failure");
        QTest::newRow("in init") << PLUGIN_fixture_throwsinit << "throwsinit: init threw: nothing works in init";
        QTest::newRow("in an event handler")
            << PLUGIN_fixture_throwshandler
            << "throwshandler: An event handler of QTimer 'handler' threw: nothing works in handlers";
        QTest::newRow("in idle") << PLUGIN_fixture_throwsidle << "throwsidle: idle threw: nothing works in idle";
    }

    void aPluginThatThrowsMakesTheTourFail() {
        QFETCH(QString, plugin);
        QFETCH(QString, failure);
        copy({plugin, PLUGIN_fixture_touring});
        QCOMPARE(tour(), 1);
        QVERIFY2(transcript().contains("- " + failure), qPrintable(transcript()));
        QVERIFY(!transcript().contains("Nothing failed."));
        QCOMPARE(pictureNames().filter("-touring").size(), 7);
    }

    void aPluginThatCrashesLeavesTheTranscriptUpToThen() {
        copy({PLUGIN_fixture_crashing, PLUGIN_fixture_pair});
        QCOMPARE(tour(), -1);
        QVERIFY2(transcript().contains("| crashing | afterInit |"), qPrintable(transcript()));
        QVERIFY(!pictureNames().filter("-start").isEmpty());
        QVERIFY(pictureNames().filter("-second").isEmpty());
    }

    void aFileThatDoesNotLoadMakesTheTourFail() {
        copy({PLUGIN_fixture_nothing, PLUGIN_fixture_pair});
        QCOMPARE(tour(), 1);
        QVERIFY(transcript().contains("registers no plugin, or only names that other plugins hold."));
        QCOMPARE(pictureNames().filter("-page-second").size(), 1);
    }

    void withoutPluginFilesTheTourFailsAndSaysSo() {
        QCOMPARE(tour(), 1);
        QVERIFY(transcript().contains("holds no plugin file"));
    }

    void theTourWaitsForTheLinksAndLooksAtTheDeveloperDock() {
        copy({PLUGIN_fixture_touring});
        QCOMPARE(tour(), 0);
        QCOMPARE(withoutNumbers(pictureNames().filter("-developer-")),
                 QStringList({"developer-tree", "developer-traffic", "developer-links"}));
        QVERIFY(transcript().contains("Developer dock, tab \"Traffic\"."));
    }

    void aLineOfEachInstructionOfAPluginIsWrittenAndTakenBack() {
        copy({PLUGIN_gripper});
        QCOMPARE(tour(), 0);
        QStringList pictures;
        for (const char* type : {"closegripper", "opengripper"}) {
            for (const char* what : {"new", "refused", "inserted", "edited", "undone", "saved"})
                pictures << QString("program-%1-%2").arg(type, what);
        }
        QCOMPARE(withoutNumbers(pictureNames().filter("-program-")), pictures);
        QVERIFY(transcript().contains("Inserted a line of “CloseGripper”."));
        QCOMPARE(contentOf(programFile()), QByteArray());

        // What was not saved before a tour is not saved by it.
        QFile unsaved(programFile() + ".unsaved");
        QVERIFY(unsaved.open(QIODevice::WriteOnly) && unsaved.write("Wait 6 ms\n") > 0);
        unsaved.close();
        QCOMPARE(tour(), 0);
        QCOMPARE(withoutNumbers(pictureNames().filter("-program-")),
                 pictures.filter(QRegularExpression("^(?!.*saved)")));
        QCOMPARE(contentOf(programFile()), QByteArray());
        QCOMPARE(contentOf(unsaved.fileName()), QByteArray("Wait 6 ms\n"));
    }

    void aCellThatIsNoGoodEndsThePendantWithStatus2() {
        copy({PLUGIN_fixture_touring});
        QFile cell(m_folder->filePath("bad.json"));
        QVERIFY(cell.open(QIODevice::WriteOnly));
        cell.write("{ nonsense");
        cell.close();
        QCOMPARE(tour({"--cell", "bad.json"}), 2);
        QVERIFY2(m_output.contains("bad.json"), m_output.constData());
        QVERIFY(pictureNames().isEmpty());
        QCOMPARE(tour({"--cell", "missing.json"}), 2);
        QVERIFY2(m_output.contains("missing.json"), m_output.constData());
    }

    void aFolderThatCannotBeMadeIsToldAndFails() {
        copy({PLUGIN_fixture_pair});
        QFile file(m_folder->filePath("out"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QVERIFY(tour() != 0);
        QVERIFY2(m_output.contains("Cannot write " + m_folder->filePath("out").toUtf8()), m_output.constData());
    }

private:
    void checkPictures() const {
        const QStringList pictures = pictureNames();
        QCOMPARE(
            withoutNumbers(pictures.filter("touring")),
            QStringList({"page-touring", "window-touring-full-screen", "window-touring-ask-and-wait",
                         "window-touring-ask", "sidebar-touring-left", "sidebar-touring-right", "keys-touring-jog"}));
        QVERIFY(pictures.first().startsWith("01-start"));
        for (int i = 0; i < pictures.size(); ++i)
            QVERIFY(pictures.at(i).startsWith(QString::number(i + 1).rightJustified(2, '0') + '-'));
        for (const QString& picture : pictures)
            QVERIFY2(!QImage(result(picture)).isNull(), qPrintable(picture));
    }

    void checkTranscript() const {
        const QString text = transcript();
        QVERIFY(text.contains("Nothing failed."));
        for (const QString& picture : pictureNames())
            QVERIFY2(text.contains("![" + picture + "](" + picture + ")"), qPrintable(picture));
        for (const char* call : {"constructor", "setup", "afterSetup", "init", "afterInit", "render", "afterRender",
                                 "idle", "afterIdle", "beforeDetach", "detach", "destructor"}) {
            const QRegularExpression row(
                QStringLiteral("\n\\| touring \\| %1 \\| \\d+\\.\\d\\d \\|  \\|\n").arg(QLatin1String(call)));
            QVERIFY2(text.contains(row), call);
        }
        QVERIFY(text.contains("| touring | A \\| B | stopped |  |"));
        QVERIFY(text.contains("The physical keys \"Off\" of touring are disabled now."));
    }

    void copy(const QStringList& plugins) {
        for (const QString& plugin : plugins) {
            const QString target = m_folder->filePath("plugins/" + QFileInfo(plugin).fileName());
            QVERIFY2(QFile::copy(plugin, target), qPrintable(plugin));
        }
    }

    int tour(const QStringList& more = {}) {
        QProcess pendant;
        pendant.setProcessChannelMode(QProcess::MergedChannels);
        pendant.setWorkingDirectory(m_folder->path());
        pendant.start(
            PENDANT, QStringList{"--plugins", "plugins", "--work", "work", "--language", "en", "--tour", "out"} + more);
        const bool finished = pendant.waitForFinished(120000);
        m_output = pendant.readAll();
        return finished && pendant.exitStatus() == QProcess::NormalExit ? pendant.exitCode() : -1;
    }

    QString result(const QString& name) const { return m_folder->filePath("out/" + name); }

    QStringList pictureNames() const {
        return QDir(m_folder->filePath("out")).entryList({"[0-9]*.png"}, QDir::Files, QDir::Name);
    }

    static QStringList withoutNumbers(const QStringList& pictures) {
        QStringList names;
        for (const QString& picture : pictures)
            names.append(picture.mid(3).chopped(4));
        return names;
    }

    QString programFile() const {
        QDirIterator files(m_folder->filePath("work/workspace"), {"main.txt"}, QDir::Files,
                           QDirIterator::Subdirectories);
        return files.hasNext() ? files.next() : QString();
    }

    static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }

    QString transcript() const {
        QFile file(result("tour.md"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_output;
};

QTEST_GUILESS_MAIN(TestTour)
#include "tst_tour.moc"
