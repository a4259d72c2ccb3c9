#include "treesearch.h"

#include "valuetext.h"

#include <QElapsedTimer>

namespace pendant {

namespace {

const int sliceMs = 8;

} // namespace

TreeSearch::TreeSearch(QObject* parent) : QObject(parent) {
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &TreeSearch::slice);
}

void TreeSearch::start(brisk::ModuleObject* root, const QString& text) {
    forget();
    m_text = text;
    m_levels = {Level{root, QString(), 0}};
    m_timer.start();
}

void TreeSearch::stop() {
    m_timer.stop();
    m_levels.clear();
}

void TreeSearch::forget() {
    m_text.clear();
    m_hits.clear();
    m_looked = 0;
    m_complete = false;
}

void TreeSearch::slice() {
    const int before = m_hits.size();
    QElapsedTimer spent;
    spent.start();
    bool more = true;
    while (more && !spent.hasExpired(sliceMs))
        more = step();
    if (!more) {
        m_complete = m_levels.isEmpty();
        stop();
    }
    if (m_hits.size() > before)
        emit found(before);
    emit progressed();
    if (!more)
        emit finished();
}

bool TreeSearch::step() {
    if (m_levels.isEmpty() || m_hits.size() >= mostHits)
        return false;
    Level& level = m_levels.last();
    brisk::ModuleObject* child = level.node ? level.node->c(level.next++) : nullptr;
    if (!child) {
        m_levels.removeLast();
        return true;
    }
    const QString key = level.prefix + child->name();
    look(child, key);
    if (child->cmobjCount() > 0)
        m_levels.append({child, key + QLatin1Char('.'), 0});
    return true;
}

void TreeSearch::look(brisk::ModuleObject* node, const QString& key) {
    ++m_looked;
    if (matches(node, key))
        m_hits.append({node, key});
}

bool TreeSearch::matches(brisk::ModuleObject* node, const QString& key) const {
    const int at = key.lastIndexOf(m_text, -1, Qt::CaseInsensitive);
    if (at >= 0 && at + m_text.size() > key.size() - node->name().size())
        return true;
    const QVariant value = node->value();
    return value.isValid() && valueText(value).contains(m_text, Qt::CaseInsensitive);
}

} // namespace pendant
