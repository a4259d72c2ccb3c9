#include "linetypes.h"

#include "helm/vexmanager.h"

#include <QTimer>

#include <algorithm>

using helm::VexManager;

namespace pendant {

namespace {

const int mostKnown = 50000;

VexManager& registry() {
    return *VexManager::getVexManager();
}

bool hasCreator(const QHash<QString, helm::WidgetCreator>& creators, const QString& type) {
    return static_cast<bool>(creators.value(type));
}

} // namespace

LineTypes::LineTypes(QObject* parent) : QObject(parent) {
    reload();
}

// Containers that are still shared compare without a look at what is in them.
bool LineTypes::isStale() const {
    const VexManager& now = registry();
    return now.typeKeys != m_registry.typeKeys || now.patterns != m_registry.patterns ||
           now.groups != m_registry.groups || now.groupMembers != m_registry.groupMembers ||
           now.descriptions != m_registry.descriptions || now.hiddenTypes != m_registry.hiddenTypes ||
           now.skeletons != m_registry.skeletons || now.icons != m_registry.icons || now.titles != m_registry.titles;
}

void LineTypes::reload() {
    const VexManager& now = registry();
    m_registry = {now.typeKeys, now.groups,    now.groupMembers, now.descriptions, now.hiddenTypes,
                  now.patterns, now.skeletons, now.icons,        now.titles};
    readTypes();
    compile();
}

void LineTypes::readTypes() {
    m_types = m_registry.typeKeys;
    m_types.removeDuplicates();
    m_types.removeAll(QString());
}

void LineTypes::compile() {
    QHash<QString, QRegularExpression> compiled;
    for (const Matcher& matcher : qAsConst(m_matchers))
        compiled.insert(matcher.expression.pattern(), matcher.expression);
    m_matchers.clear();
    m_badPatterns.clear();
    m_known.clear();
    m_knownTypes.clear();
    for (const QString& type : qAsConst(m_types)) {
        const QString given = pattern(type);
        if (!given.isEmpty())
            addMatcher(type, compiled.value(given, QRegularExpression(given)));
    }
}

void LineTypes::addMatcher(const QString& type, const QRegularExpression& expression) {
    if (expression.isValid()) {
        m_matchers.append({type, expression});
        return;
    }
    const BadPattern bad{type, expression.pattern(),
                         tr("The pattern is no regular expression: %1, at character %2. No line belongs to this type.")
                             .arg(expression.errorString())
                             .arg(expression.patternErrorOffset())};
    m_badPatterns.append(bad);
    tellOnce(type, bad.pattern, bad.what);
}

void LineTypes::tellOnce(const QString& type, const QString& pattern, const QString& what) const {
    if (m_told.contains({type, pattern}))
        return;
    m_told.insert({type, pattern});
    auto* self = const_cast<LineTypes*>(this);
    QTimer::singleShot(0, self, [self, type, what] { emit self->patternFailed(type, what); });
}

bool LineTypes::isFound(const Matcher& matcher, const QString& line) const {
    const QRegularExpressionMatch match = matcher.expression.match(line);
    if (!match.isValid())
        tellOnce(matcher.type, matcher.expression.pattern(),
                 tr("The pattern gave up on a line of %1 characters; the line counts as none of this type.")
                     .arg(line.size()));
    return match.hasMatch();
}

int LineTypes::indexOfMatch(const QString& line) const {
    const auto known = m_known.constFind(line);
    if (known != m_known.constEnd())
        return *known;
    const auto found = std::find_if(m_matchers.begin(), m_matchers.end(),
                                    [&](const Matcher& matcher) { return isFound(matcher, line); });
    const int index = found == m_matchers.end() ? -1 : int(found - m_matchers.begin());
    if (m_known.size() >= mostKnown)
        m_known.clear();
    m_known.insert(line, index);
    return index;
}

QString LineTypes::typeOf(const QString& line) const {
    const int index = indexOfMatch(line);
    return index < 0 ? QString() : m_matchers.at(index).type;
}

QStringList LineTypes::typesOf(const QString& line) const {
    const auto known = m_knownTypes.constFind(line);
    if (known != m_knownTypes.constEnd())
        return *known;
    QStringList types;
    for (const Matcher& matcher : m_matchers) {
        if (isFound(matcher, line))
            types << matcher.type;
    }
    if (m_knownTypes.size() >= mostKnown)
        m_knownTypes.clear();
    m_knownTypes.insert(line, types);
    return types;
}

QString LineTypes::title(const QString& type) const {
    const QString title = m_registry.titles.value(type);
    return title.isEmpty() ? type : title;
}

QString LineTypes::description(const QString& type) const {
    return m_registry.descriptions.value(type);
}

QString LineTypes::icon(const QString& type) const {
    return m_registry.icons.value(type);
}

QString LineTypes::skeleton(const QString& type) const {
    return m_registry.skeletons.value(QStringLiteral("s_") + type);
}

QString LineTypes::pattern(const QString& type) const {
    return m_registry.patterns.value(QStringLiteral("c_") + type);
}

bool LineTypes::hasInsertWidget(const QString& type) {
    return hasCreator(registry().insertWidgets, type);
}

bool LineTypes::hasPropertyWidget(const QString& type) {
    return hasCreator(registry().propertyWidgets, type);
}

} // namespace pendant
