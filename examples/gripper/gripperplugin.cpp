#include "gripperplugin.h"

#include "closegrippereditor.h"
#include "opengrippereditor.h"

#include <QLabel>
#include <QVBoxLayout>

KITE_PLUGIN(GripperPlugin, "gripper");

namespace {

const QString group = QStringLiteral("gripper");

// The editor is the same for a new line and for one that is there.
template <typename Editor> void addInstruction(const LineForm& form, const QString& describe) {
    const auto makeEditor = [] { return new Editor; };
    kite::VexManager instructions;
    instructions.createData(group, form.type, describe, makeEditor, makeEditor);
    // createData() knows the bare name only; these two are for a line with parameters.
    instructions.createPattern(form.type, linePattern(form));
    instructions.createSkeleton(form.type, lineSkeleton(form));
}

QLabel* makeText(const QString& text) {
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

} // namespace

GripperPlugin::GripperPlugin(QObject* parent) : PluginBase(parent) {
    setPluginLabel(tr("Gripper"));
}

void GripperPlugin::init() {
    registerInstructions();
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setSpacing(16);
    layout->addWidget(makeText(tr("Two instructions for robot programs. The page “Program” offers them in the group "
                                  "“Gripper”. Their lines read:")));
    for (const LineForm& form : {closeGripperForm(), openGripperForm()}) {
        auto* line = makeText(writeLine(form, {form.most / 2, 200, QString(), QString()}));
        line->setProperty("strong", true);
        layout->addWidget(line);
    }
    layout->addStretch(1);
    kite::CreateCenterWidget(kitePluginName, page);
}

void GripperPlugin::registerInstructions() {
    kite::VexManager().createGroups(group, tr("Gripper"));
    addInstruction<CloseGripperEditor>(closeGripperForm(), tr("Closes the gripper with a force, then waits."));
    addInstruction<OpenGripperEditor>(openGripperForm(), tr("Opens the gripper to a width, then waits."));
}
