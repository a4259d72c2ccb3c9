#include "kite/vexbasewidget.h"

#include <QHBoxLayout>
#include <QMetaMethod>
#include <QTest>

#include <memory>

using kite::VexBaseWidget;
using kite::VexContentBase;

namespace {

// What came to the process's message handler and to the content, in order.
QStringList events;

void note(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    events << QStringLiteral("%1|%2|%3").arg(QString::number(type), QLatin1String(context.category), text);
}

const QString debugMessage = QStringLiteral("0|default|<kite> VexBaseWidget::ToString()");

// Writes down its calls and answers as it is told.
class Recording : public VexContentBase {
public:
    bool insertion = true;
    bool replacement = true;
    QString line = QStringLiteral("Recording 1");

    void FillWith(const QString& text) override { events << "FillWith " + text; }
    QString ToString() override {
        events << "ToString";
        return line;
    }
    bool CheckInsert() override {
        events << "CheckInsert";
        return insertion;
    }
    bool CheckReplace() override {
        events << "CheckReplace";
        return replacement;
    }
};

class RefusingWrapper : public VexBaseWidget {
public:
    using VexBaseWidget::VexBaseWidget;
    bool CheckInsert() override { return false; }
};

} // namespace

class TestVexBaseWidget : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void withoutContentItIsEmptyAndAcceptsEverything();
    void withoutContentReplacingAsksItsOwnCheckInsert();
    void withContentReplacingAsksTheContentAlone();
    void aContentThatKeepsTheDefaultsRefuses();
    void theLineIsHandedOnAsItIs_data();
    void theLineIsHandedOnAsItIs();
    void theChecksAreTheContents();
    void everyLineIsWrittenToTheMessageHandlerFirst();
    void theHostsOtherCallsStayTheHosts();
    void theContentStandsAloneInAHorizontalLayout();
    void theContentIsShownWithIt();
    void theWrapperIsTheContentsParentAndDeletesIt();
    void contentThatHadAParentGoesOver();
    void contentThatIsDeletedIsNoContent();
    void contentThatIsGivenAwayIsStillAsked();
    void contentThatIsGivenAwayOutlivesIt();
    void theHostSeesItAsItsOwn();
    void theMetaObjectHasTheFullNameAndNothingOfItsOwn();

private:
    QtMessageHandler m_before = nullptr;
};

void TestVexBaseWidget::init() {
    events.clear();
    m_before = qInstallMessageHandler(note);
}

void TestVexBaseWidget::cleanup() {
    qInstallMessageHandler(m_before);
}

void TestVexBaseWidget::withoutContentItIsEmptyAndAcceptsEverything() {
    QWidget parent;
    VexBaseWidget wrapper(nullptr, &parent);
    QCOMPARE(wrapper.parentWidget(), &parent);
    QVERIFY(!wrapper.layout());
    QVERIFY(wrapper.children().isEmpty());
    wrapper.FillWith("MyMove");
    QVERIFY(wrapper.CheckInsert());
    QVERIFY(wrapper.CheckReplace());
    QCOMPARE(events, QStringList());
    QCOMPARE(wrapper.ToString(), QString());
    QCOMPARE(events, QStringList(debugMessage));
}

void TestVexBaseWidget::withoutContentReplacingAsksItsOwnCheckInsert() {
    RefusingWrapper wrapper(nullptr, nullptr);
    QVERIFY(!wrapper.CheckReplace());
}

void TestVexBaseWidget::withContentReplacingAsksTheContentAlone() {
    RefusingWrapper wrapper(new Recording, nullptr);
    QVERIFY(wrapper.CheckReplace());
    QCOMPARE(events, QStringList("CheckReplace"));
}

void TestVexBaseWidget::aContentThatKeepsTheDefaultsRefuses() {
    VexBaseWidget wrapper(new VexContentBase, nullptr);
    wrapper.FillWith("MyMove");
    QCOMPARE(wrapper.ToString(), QString());
    QVERIFY(!wrapper.CheckInsert());
    QVERIFY(!wrapper.CheckReplace());
}

void TestVexBaseWidget::theLineIsHandedOnAsItIs_data() {
    QTest::addColumn<QString>("line");
    QTest::newRow("a line") << "MyMove 1";
    QTest::newRow("nothing") << "";
    QTest::newRow("blanks and a comment") << "  MyMove\t// 'slowly' \"now\" // ";
    QTest::newRow("regular-expression characters") << "^(.*)$\\d+[%1]";
    QTest::newRow("other letters") << QString::fromUtf8("夹爪 öffnen 🤖");
    QTest::newRow("very long") << QString(1000000, 'x');
}

void TestVexBaseWidget::theLineIsHandedOnAsItIs() {
    QFETCH(QString, line);
    auto* content = new Recording;
    content->line = line;
    VexBaseWidget wrapper(content, nullptr);
    wrapper.FillWith(line);
    QCOMPARE(events, QStringList("FillWith " + line));
    QCOMPARE(wrapper.ToString(), line);
}

void TestVexBaseWidget::theChecksAreTheContents() {
    auto* content = new Recording;
    VexBaseWidget wrapper(content, nullptr);
    QVERIFY(wrapper.CheckInsert());
    QVERIFY(wrapper.CheckReplace());
    content->insertion = false;
    QVERIFY(!wrapper.CheckInsert());
    QVERIFY(wrapper.CheckReplace());
    content->replacement = false;
    QVERIFY(!wrapper.CheckReplace());
    QCOMPARE(events, QStringList({"CheckInsert", "CheckReplace", "CheckInsert", "CheckReplace", "CheckReplace"}));
}

void TestVexBaseWidget::everyLineIsWrittenToTheMessageHandlerFirst() {
    VexBaseWidget wrapper(new Recording, nullptr);
    wrapper.ToString();
    wrapper.ToString();
    QCOMPARE(events, QStringList({debugMessage, "ToString", debugMessage, "ToString"}));
}

void TestVexBaseWidget::theHostsOtherCallsStayTheHosts() {
    VexBaseWidget wrapper(new Recording, nullptr);
    helm::BaseContentWidget& seenByTheHost = wrapper;
    QCOMPARE(seenByTheHost.ToJsonValue(), QJsonValue());
    QCOMPARE(seenByTheHost.GetLabel(), QString());
    seenByTheHost.RefreshProgramData();
    QCOMPARE(events, QStringList());
}

void TestVexBaseWidget::theContentStandsAloneInAHorizontalLayout() {
    auto* content = new Recording;
    const VexBaseWidget wrapper(content, nullptr);
    auto* layout = qobject_cast<QHBoxLayout*>(wrapper.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), content);
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
    QWidget plain;
    QCOMPARE(layout->contentsMargins(), QHBoxLayout(&plain).contentsMargins());
}

void TestVexBaseWidget::theContentIsShownWithIt() {
    auto* content = new Recording;
    content->setMinimumSize(300, 100);
    VexBaseWidget wrapper(content, nullptr);
    QVERIFY(!content->isVisible());
    wrapper.show();
    QVERIFY(content->isVisible());
    QVERIFY(wrapper.width() >= 300);
}

void TestVexBaseWidget::theWrapperIsTheContentsParentAndDeletesIt() {
    const QPointer<VexContentBase> content(new Recording);
    auto* wrapper = new VexBaseWidget(content, nullptr);
    QCOMPARE(content->parent(), wrapper);
    delete wrapper;
    QVERIFY(content.isNull());
}

void TestVexBaseWidget::contentThatHadAParentGoesOver() {
    QWidget before;
    auto* content = new Recording;
    content->setParent(&before);
    const VexBaseWidget wrapper(content, nullptr);
    QCOMPARE(content->parent(), &wrapper);
    QVERIFY(before.children().isEmpty());
}

void TestVexBaseWidget::contentThatIsDeletedIsNoContent() {
    auto* content = new Recording;
    content->insertion = false;
    VexBaseWidget wrapper(content, nullptr);
    delete content;
    wrapper.FillWith("MyMove");
    QVERIFY(wrapper.CheckInsert());
    QVERIFY(wrapper.CheckReplace());
    QCOMPARE(wrapper.ToString(), QString());
    QCOMPARE(events, QStringList(debugMessage));
}

void TestVexBaseWidget::contentThatIsGivenAwayIsStillAsked() {
    QWidget elsewhere;
    auto* content = new Recording;
    VexBaseWidget wrapper(content, nullptr);
    content->setParent(&elsewhere);
    QCOMPARE(wrapper.ToString(), content->line);
}

void TestVexBaseWidget::contentThatIsGivenAwayOutlivesIt() {
    auto content = std::make_unique<Recording>();
    {
        const VexBaseWidget wrapper(content.get(), nullptr);
        content->setParent(nullptr);
    }
    QCOMPARE(content->ToString(), QString("Recording 1"));
    content.reset();
}

void TestVexBaseWidget::theHostSeesItAsItsOwn() {
    QObject* wrapper = new VexBaseWidget(new Recording, nullptr);
    auto* seenByTheHost = qobject_cast<helm::BaseContentWidget*>(wrapper);
    QVERIFY(seenByTheHost);
    QCOMPARE(seenByTheHost->ToString(), QString("Recording 1"));
    delete seenByTheHost;
}

void TestVexBaseWidget::theMetaObjectHasTheFullNameAndNothingOfItsOwn() {
    const QMetaObject& meta = VexBaseWidget::staticMetaObject;
    QCOMPARE(meta.className(), "kite::VexBaseWidget");
    QCOMPARE(meta.superClass(), &helm::BaseContentWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

QTEST_MAIN(TestVexBaseWidget)
#include "tst_vexbasewidget.moc"
