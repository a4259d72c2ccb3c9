#include "emptystate.h"
#include "frame/elidedlabel.h"
#include "logfilterbar.h"
#include "logpage.h"
#include "logview.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace pendant {

void LogPage::showState() {
    m_filter->setModules(m_view->modules());
    m_filter->setSearching(m_search.isRunning());
    m_state->setText(stateText());
    showWhere();
    showEmptiness();
}

void LogPage::showEmptiness() {
    const bool filtered = m_search.isActive();
    const bool nothing = filtered ? m_search.hits().count() == 0 : m_text.size() == 0;
    m_view->setVisible(!nothing);
    m_empty->setVisible(nothing);
    m_empty->setLines({});
    if (!nothing)
        return;
    if (m_search.isRunning())
        return m_empty->setTexts(tr("Searching"), tr("What is found appears here, the newest first."));
    if (filtered && m_text.size() > 0)
        return m_empty->setTexts(tr("Nothing matches the filter"),
                                 tr("All levels, or other text, brings back what is hidden."));
    QString path;
    const QString problem = m_text.problem(&path);
    if (!problem.isEmpty()) {
        m_empty->setTexts(tr("The log cannot be read"), problem);
        return m_empty->setLines({path});
    }
    m_empty->setTexts(
        tr("Nothing logged yet"),
        tr("What plugins and the pendant write with their log streams appears here, from all “.log” files "
           "below this folder. The first line makes the file."));
    m_empty->setLines({QDir::toNativeSeparators(m_feed.folder())});
}

void LogPage::showWhere() {
    if (m_text.fileCount() == 0)
        return m_where->setText(m_feed.folder());
    const QString path = m_text.file(m_text.end().file).path;
    const QString size = QLocale().formattedDataSize(m_text.size(), 1);
    m_where->setText(m_text.fileCount() == 1 ? QStringLiteral("%1   %2").arg(path, size)
                                             : tr("%1   %2 in %3 files").arg(path, size).arg(m_text.fileCount()));
}

QString LogPage::stateText() const {
    QString path;
    const QString problem = m_text.problem(&path);
    if (!problem.isEmpty())
        return tr("%1 cannot be read: %2").arg(QFileInfo(path).fileName(), problem);
    if (m_nothingThatLate)
        return tr("Nothing is that late; these are the newest lines.");
    if (m_search.isActive())
        return searchText();
    if (m_text.size() == 0 || !m_view->isFollowing())
        return QString();
    if (m_text.grownBefore() >= 0)
        return tr("Live; %1 is written to as well").arg(QFileInfo(m_text.file(m_text.grownBefore()).path).fileName());
    return tr("Live");
}

QString LogPage::searchText() const {
    const QLocale locale;
    const QString found = locale.toString(m_search.hits().count());
    const QString looked = locale.toString(static_cast<int>(m_search.progress() * 100));
    if (m_search.isRunning())
        return tr("Searching: %1 % looked at, %2 found").arg(looked, found);
    if (m_search.hits().isFull())
        return tr("The newest %1 are shown").arg(found);
    if (!m_search.isComplete())
        return tr("Stopped: %1 % looked at, %2 found").arg(looked, found);
    return tr("%1 found").arg(found);
}

} // namespace pendant
