#pragma once

#include "framefixture.h"

#include "frame/pagekeys.h"
#include "pages/programcontent.h"
#include "pages/programpage.h"
#include "pages/programpickermodel.h"
#include "plugins/callguard.h"
#include "plugins/pluginloader.h"
#include "plugins/pluginsession.h"

#include "pendanttest/logwatch.h"

#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollArea>

/// Lets what is put off happen, and what that puts off.
inline void settle() {
    for (int i = 0; i < 4; ++i)
        Frame::settle();
}

/// The pendant's window at the program page, as after a start of the pendant.
struct Editor {
    explicit Editor(const QSize& size = QSize(1280, 800)) {
        frame.window->resize(size);
        show();
    }
    ~Editor() {
        leave();
        settle();
    }

    void show() {
        frame.window->showPage(pendant::pagekeys::program());
        settle();
    }
    void leave() { frame.window->showPage(pendant::pagekeys::start()); }

    pendant::ProgramPage* page() const { return frame.pages->program(); }
    pendant::Program* program() const { return page()->store()->program(); }
    QStringList lines() const { return program()->lines(); }
    /// Null unless it is on the screen.
    template <typename Widget = QWidget> Widget* find(const QString& name) const {
        for (Widget* found : page()->findChildren<Widget*>(name)) {
            if (found->isVisible())
                return found;
        }
        return nullptr;
    }
    QString text(const QString& name) const {
        const auto* label = find<QLabel>(name);
        return label ? label->text() : QString();
    }
    bool press(const QString& name) const {
        auto* button = find<QAbstractButton>(name);
        if (!button || !button->isEnabled())
            return false;
        QTest::mouseClick(button, Qt::LeftButton);
        settle();
        return true;
    }
    bool isEnabled(const QString& name) const {
        const auto* button = find<QAbstractButton>(name);
        return button && button->isEnabled();
    }
    void type(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(list(), Qt::Key(key), modifiers);
        settle();
    }

    QListView* list() const { return page()->findChild<QListView*>("programLines"); }
    int row() const { return list()->currentIndex().row(); }
    void select(int row) const { tap(list(), program()->index(row)); }
    /// A finger on a row. The window goes to where there is a screen, for only there scrolling lets a tap through.
    void tap(QListView* view, const QModelIndex& index) const {
        view->scrollTo(index);
        const QPoint point = view->visualRect(index).center();
        const QPoint onScreen = view->viewport()->mapToGlobal(point);
        frame.window->move(frame.window->pos() + QPoint(100, 100) - onScreen);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, point);
        settle();
    }

    QListView* picker() const { return find<QListView>("instructionTypes"); }
    /// The rows of the picker: "Motion:", "MoveJ", ...
    QStringList offered() const {
        QStringList rows;
        const QAbstractItemModel* model = page()->findChild<QListView*>("instructionTypes")->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            const QString type = model->index(row, 0).data(pendant::ProgramPickerModel::TypeRole).toString();
            rows << (type.isEmpty() ? model->index(row, 0).data().toString() + ':' : type);
        }
        return rows;
    }
    /// Opens the widget for a new line of that type.
    bool pick(const QString& type) const {
        if (!press("insertLine") || !offered().contains(type))
            return false;
        tap(picker(), picker()->model()->index(offered().indexOf(type), 0));
        return true;
    }
    /// The widget of an instruction; null when none is open.
    QWidget* content() const { return find<QWidget>("instructionContent"); }
    template <typename Widget> Widget* field(const QString& name) const {
        return content() ? content()->findChild<Widget*>(name) : nullptr;
    }
    QString notice() const { return text("editorNotice"); }

    Frame frame;
};

/// Every case has an empty workspace and an empty project called "demo". The instructions of the gripper and the odd
/// ones are registered once, by their shared objects.
class EditorTest : public QObject {
    Q_OBJECT

protected:
    static void setProject(const QString& name) {
        if (!name.contains("..") && !name.isEmpty())
            QVERIFY(QDir().mkpath("workspace/" + name));
        m("orca.project.cur_project")->setValue(nullptr, name);
        settle();
    }
    static QString fileOf(const QString& project = "demo") { return "workspace/" + project + "/programs/main.txt"; }
    static void write(const QStringList& lines, const QString& project = "demo") {
        QVERIFY(QDir().mkpath(QFileInfo(fileOf(project)).path()));
        QFile file(fileOf(project));
        QVERIFY(file.open(QIODevice::WriteOnly));
        for (const QString& line : lines)
            file.write(line.toUtf8() + '\n');
    }
    static QString read(const QString& project = "demo") {
        QFile file(fileOf(project));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString("not there");
    }
    /// "plugin or type: text" of the warnings and errors.
    static QStringList problems() {
        QStringList problems;
        for (const helm::standin::Message& message : Frame::messages()) {
            if (message.level != helm::standin::MessageLevel::Information)
                problems << message.source + ": " + message.text;
        }
        return problems;
    }
    static int living() { return qApp->property("oddContents").toInt(); }
    /// What was called in the odd contents since it was asked last.
    static QStringList calls() {
        const QStringList calls = qApp->property("oddCalls").toStringList();
        qApp->setProperty("oddCalls", QStringList());
        return calls;
    }
    void expect(const QString& line) { m_log->expect(line); }

private slots:
    void initTestCase() {
        Frame frame;
        for (const char* plugin : {PLUGIN_gripper, PLUGIN_fixture_odd})
            m_loader.loadFile(plugin);
        pendant::CallGuard guard;
        pendant::PluginSession session(&guard, &m_loader);
        session.start(frame.window->center());
        QVERIFY(!session.hasFailures());
        session.stop();
    }
    void init() {
        m_log.reset(new pendanttest::LogWatch);
        setProject("demo");
        calls();
    }
    void cleanup() {
        m("orca")->clear(nullptr, true, true);
        settle();
        QVERIFY(QDir("workspace").removeRecursively());
        QCOMPARE(living(), 0);
        m_log.reset();
    }

private:
    pendant::PluginLoader m_loader;
    std::unique_ptr<pendanttest::LogWatch> m_log;
};
