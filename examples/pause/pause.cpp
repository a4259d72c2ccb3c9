#include <kite/kite.h>

#include <QLabel>
#include <QVBoxLayout>

// The smallest instruction: its line is its name alone, and there is nothing to fill in.
class PauseEditor : public kite::VexContentBase {
public:
    PauseEditor() {
        ownText = QStringLiteral("Pause");
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(new QLabel(QStringLiteral("The program stops until a person goes on.")));
    }
    // The line with its comment and the blanks in front: what is not kept here is lost to the program.
    void FillWith(const QString& line) override { ownText = line; }
    QString ToString() override { return ownText; }
    bool CheckInsert() override { return true; }
    bool CheckReplace() override { return true; }
};

class PausePlugin : public kite::PluginBase {
public:
    explicit PausePlugin(QObject* parent) : PluginBase(parent) { setPluginLabel(QStringLiteral("Pause")); }
    void init() override;
};

KITE_PLUGIN(PausePlugin, "pause");

void PausePlugin::init() {
    const auto makeEditor = [] { return new PauseEditor; };
    kite::VexManager instructions;
    instructions.createGroups(kitePluginName, QStringLiteral("Pause"));
    instructions.createData(kitePluginName, QStringLiteral("Pause"), QStringLiteral("Stops the program."), makeEditor,
                            makeEditor);
}
