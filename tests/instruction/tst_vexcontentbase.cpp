#include "kite/vexcontentbase.h"

#include <QMetaMethod>
#include <QTest>

using kite::VexContentBase;

namespace {

class Keeping : public VexContentBase {
public:
    using VexContentBase::ownText;
    using VexContentBase::VexContentBase;
};

} // namespace

class TestVexContentBase : public QObject {
    Q_OBJECT

private slots:
    void theDefaultsRefuseAndStandForAnEmptyLine() {
        VexContentBase content;
        content.FillWith("MyMove // slowly");
        QCOMPARE(content.ToString(), QString());
        QVERIFY(!content.CheckInsert());
        QVERIFY(!content.CheckReplace());
        QVERIFY(content.children().isEmpty());
    }

    void checkReplaceDoesNotAskCheckInsert() {
        struct Inserting : VexContentBase {
            bool CheckInsert() override { return true; }
        } content;
        QVERIFY(content.CheckInsert());
        QVERIFY(!content.CheckReplace());
    }

    void theTextOfItsOwnIsEmptyAndLeftAlone() {
        Keeping content;
        QVERIFY(content.ownText.isEmpty());
        content.FillWith("line");
        QVERIFY(content.ownText.isEmpty());
        content.ownText = QStringLiteral("mine");
        QCOMPARE(content.ToString(), QString());
        content.CheckInsert();
        content.CheckReplace();
        QCOMPARE(content.ownText, QString("mine"));
    }

    void theParentOwnsIt() {
        auto* parent = new QWidget;
        const QPointer<VexContentBase> content(new VexContentBase(parent));
        QCOMPARE(content->parentWidget(), parent);
        delete parent;
        QVERIFY(content.isNull());
    }

    void theMetaObjectHasTheFullNameAndNothingOfItsOwn() {
        const QMetaObject& meta = VexContentBase::staticMetaObject;
        QCOMPARE(meta.className(), "kite::VexContentBase");
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QCOMPARE(meta.methodCount(), meta.methodOffset());
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    }
};

QTEST_MAIN(TestVexContentBase)
#include "tst_vexcontentbase.moc"
