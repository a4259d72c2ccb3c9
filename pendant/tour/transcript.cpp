#include "transcript.h"

#include "markdown.h"

namespace pendant {

namespace {

QString heading(const QString& text) {
    return QStringLiteral("\n## %1\n\n").arg(text);
}

QString stateWord(PluginState state) {
    switch (state) {
    case PluginState::Running:
        return Transcript::tr("running");
    case PluginState::Failed:
        return Transcript::tr("switched off");
    case PluginState::Stopped:
        return Transcript::tr("stopped");
    }
    return QString();
}

QString levelWord(helm::standin::MessageLevel level) {
    switch (level) {
    case helm::standin::MessageLevel::Information:
        return Transcript::tr("information");
    case helm::standin::MessageLevel::Warning:
        return Transcript::tr("warning");
    case helm::standin::MessageLevel::Error:
        return Transcript::tr("error");
    }
    return QString();
}

QString fileTable(const QList<PluginFile>& files) {
    QString text = markdownTableHead({Transcript::tr("File"), Transcript::tr("Plugins"), Transcript::tr("Problem")});
    for (const PluginFile& file : files)
        text += markdownTableRow({file.path, file.names.join(QStringLiteral(", ")), file.error});
    return text;
}

QString pluginTable(const QList<PluginInfo>& plugins) {
    QString text = markdownTableHead(
        {Transcript::tr("Plugin"), Transcript::tr("Title"), Transcript::tr("State"), Transcript::tr("Reason")});
    for (const PluginInfo& plugin : plugins)
        text += markdownTableRow({plugin.name, plugin.title, stateWord(plugin.state), plugin.reason});
    return text;
}

QString callTable(const QList<CallRecord>& calls) {
    QString text = markdownTableHead(
        {Transcript::tr("Plugin"), Transcript::tr("Call"), QStringLiteral("ms|"), Transcript::tr("Thrown")});
    for (const CallRecord& call : calls)
        text += markdownTableRow({call.plugin, call.call, QString::number(call.ms, 'f', 2), call.thrown});
    return text;
}

QString messageTable(const QList<helm::standin::Message>& messages) {
    QString text = markdownTableHead({Transcript::tr("Level"), Transcript::tr("From"), Transcript::tr("Message")});
    for (const helm::standin::Message& message : messages)
        text += markdownTableRow({levelWord(message.level), message.source, message.text});
    return text;
}

QString orNothing(const QString& table, bool empty) {
    return empty ? Transcript::tr("None.") + QLatin1Char('\n') : table;
}

} // namespace

void Transcript::addStep(const QString& text, const QString& picture) {
    m_steps.append({text, picture});
}

void Transcript::addFailure(const QString& text) {
    if (!m_failures.contains(text))
        m_failures.append(text);
}

QString Transcript::toMarkdown(const QList<PluginFile>& files, const QList<PluginInfo>& plugins,
                               const QList<CallRecord>& calls, const QList<helm::standin::Message>& messages) const {
    QString text = QStringLiteral("# %1\n").arg(tr("Tour of the pendant"));

    text += heading(tr("Result"));
    text += m_failures.isEmpty() ? tr("Nothing failed.") + QLatin1Char('\n') : QString();
    for (const QString& failure : m_failures)
        text += QStringLiteral("- %1\n").arg(markdownText(failure));

    text += heading(tr("Steps"));
    int number = 0;
    for (const Step& step : m_steps) {
        text += QStringLiteral("%1. %2\n").arg(++number).arg(markdownText(step.text));
        if (!step.picture.isEmpty())
            text += QStringLiteral("\n    ![%1](%1)\n\n").arg(step.picture);
    }

    text += heading(tr("Plugin files")) + orNothing(fileTable(files), files.isEmpty());
    text += heading(tr("Plugins")) + orNothing(pluginTable(plugins), plugins.isEmpty());
    text += heading(tr("Calls into plugins")) + orNothing(callTable(calls), calls.isEmpty());
    text += heading(tr("Messages")) + orNothing(messageTable(messages), messages.isEmpty());
    return text;
}

} // namespace pendant
