#include "project.h"

namespace {

QStringList calls;
QList<QPointer<ModuleObject>> requests;
// Null: the request itself.
ModuleObject* reply = nullptr;

void note(const char* operation, const QObject* sender, const QString& key, ModuleObject* node) {
    requests << node;
    const QString owned = node->pmobj() || node->parent() ? " of somebody" : "";
    calls << QString(R"(%1(%2; %3; "%4" %5%6))")
                 .arg(operation,
                      !sender                     ? "null"
                      : sender == kiteInterface() ? "kite"
                                                  : "other",
                      key, node->name(), compact(node->exportToJson(true)), owned);
}

// A part of a reply that looks whether the request is still there when it is read.
class Part : public ModuleObject {
public:
    using ModuleObject::ModuleObject;
    QVariant value(const QVariant& fallback) const override {
        return requests.last() ? ModuleObject::value(fallback) : QVariant("too late");
    }
};

} // namespace

// What follows comes before the host's own, because a program's symbols do.

void Relay::set(QObject* sender, const QString& key, ModuleObject* node) {
    note("set", sender, key, node);
}
void Relay::command(QObject* sender, const QString& key, ModuleObject* node) {
    note("command", sender, key, node);
}
ModuleObject* Relay::execCommand(QObject* sender, const QString& key, ModuleObject* node) {
    note("execCommand", sender, key, node);
    if (reply)
        return reply;
    node->setValue(nullptr, 1);
    node->append(nullptr, "data")->setList(nullptr, {"x", "y"});
    return node;
}

/// The nodes that variables hand to the host, and what comes of a host that gives them back.
class TestVariablesHostCalls : public ProjectTest {
    Q_OBJECT

private slots:
    void init() {
        beginProject();
        calls.clear();
        requests.clear();
        m_reply.reset(new ModuleObject("reply"));
        reply = m_reply.data();
    }

    void everyRequestIsANodeOfItsOwnNameInNoTree() {
        add(variables(), QStringList{"a", "b"});
        kiteInterface()->delVarData("a");
        kiteInterface()->registPERSVars({"a", "b"});
        kiteInterface()->getValuesOfPERSVars({"a", "b"});
        kiteInterface()->setValuesOfPERSVars({"a", "b"}, {1, 2});
        QCOMPARE(calls,
                 QStringList({R"(execCommand(null; project.variable; "temp" {"operator":"remove","variables":["a"]}))",
                              R"(set(kite; monitor.select; "select" ["a","b"]))",
                              R"(execCommand(kite; monitor.pers.read; "names" ["a","b"]))",
                              R"(command(kite; monitor.pers.modify; "modify" {"a":1,"b":2}))"}));
    }

    void aRequestLivesForTheCallOnly() {
        add(variables(), QStringList{"a"});
        kiteInterface()->delVarData("a");
        kiteInterface()->registPERSVars({"a"});
        kiteInterface()->getValuesOfPERSVars({"a"});
        kiteInterface()->setValuesOfPERSVars({"a"}, {1});
        QCOMPARE(requests.size(), 4);
        for (const QPointer<ModuleObject>& request : qAsConst(requests))
            QVERIFY(!request);
    }

    void aRequestStaysUntilItsAnswerIsRead() {
        auto* data = new Part("data", reply);
        (new Part("#0", data))->setValue(nullptr, "x");
        (new Part("#1", data))->setValue(nullptr, "y");
        QCOMPARE(kiteInterface()->getValuesOfPERSVars({"a", "b"}), QVector<QString>({"x", "y"}));
    }

    void aReplyMayBeTheRequest() {
        reply = nullptr;
        add(variables(), QStringList{"a"});
        QVERIFY(!kiteInterface()->delVarData("a"));
        QCOMPARE(kiteInterface()->getValuesOfPERSVars({"a", "b"}), QVector<QString>({"x", "y"}));
        QCOMPARE(requests.size(), 2);
    }

private:
    QScopedPointer<ModuleObject> m_reply;
};

QTEST_GUILESS_MAIN(TestVariablesHostCalls)
#include "tst_variables_hostcalls.moc"
