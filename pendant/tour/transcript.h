#pragma once

#include "plugins/callguard.h"
#include "plugins/pluginloader.h"
#include "plugins/pluginsession.h"

#include "helm/messagelist.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

namespace pendant {

/// What the tour did, written down as Markdown.
class Transcript {
    Q_DECLARE_TR_FUNCTIONS(pendant::Transcript)

public:
    /// \param picture name of a picture beside the transcript; empty when there is none
    void addStep(const QString& text, const QString& picture = QString());
    /// Something went wrong; said again, it is passed over.
    void addFailure(const QString& text);

    /// What went wrong, in order and each once.
    const QStringList& failures() const { return m_failures; }

    QString toMarkdown(const QList<PluginFile>& files, const QList<PluginInfo>& plugins, const QList<CallRecord>& calls,
                       const QList<helm::standin::Message>& messages) const;

private:
    struct Step {
        QString text;
        QString picture;
    };

    QList<Step> m_steps;
    QStringList m_failures;
};

} // namespace pendant
