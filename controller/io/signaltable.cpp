#include "controller/io/signaltable.h"

namespace controller {

namespace {

void writeDetail(const IoSignal& signal, bool isForced, brisk::ModuleObject* detail) {
    detail->set(nullptr, QStringLiteral("signal_type"), int(signal.type), false);
    detail->set(nullptr, QStringLiteral("forced"), isForced, false);
    if (isDigital(signal.type))
        return;
    detail->set(nullptr, QStringLiteral("min"), signal.minimum, false);
    detail->set(nullptr, QStringLiteral("max"), signal.maximum, false);
}

} // namespace

SignalTable::SignalTable(const Clock* clock, QObject* parent) : QObject(parent), m_clock(clock) {
    connect(clock, &Clock::advanced, this, &SignalTable::follow);
}

void SignalTable::start(const QVector<IoSignal>& ioSignals) {
    m_entries.clear();
    m_places.clear();
    for (const IoSignal& signal : ioSignals) {
        m_places.insert(signal.name, m_entries.size());
        m_entries.append({signal, QVariant()});
        if (signal.course)
            m_entries.last().signal.value = valueFor(signal, signal.course(m_clock->nowMs()));
    }
    emit changed();
}

QString SignalTable::set(const QString& name, const QJsonValue& value) {
    const QString reason = refusal(name, value, false);
    if (reason.isEmpty())
        write(name, value.toVariant());
    return reason;
}

QString SignalTable::force(const QString& name, const QJsonValue& value) {
    const QString reason = refusal(name, value, true);
    if (!reason.isEmpty())
        return reason;
    entry(name)->forced = valueFor(entry(name)->signal, value.toVariant());
    emit changed();
    return QString();
}

QString SignalTable::release(const QString& name) {
    Entry* of = entry(name);
    if (!of)
        return QStringLiteral("The controller has no signal \"%1\".").arg(name);
    if (!of->forced.isValid())
        return QString();
    of->forced = QVariant();
    emit changed();
    return QString();
}

void SignalTable::write(const QString& name, const QVariant& value) {
    Entry* of = entry(name);
    if (!of)
        return;
    of->signal.course = nullptr;
    of->signal.value = valueFor(of->signal, value);
    emit changed();
}

QVariant SignalTable::value(const QString& name) const {
    const int place = m_places.value(name, -1);
    return place < 0 ? QVariant() : m_entries.at(place).shown();
}

Content SignalTable::content() const {
    const Content content = copied(nullptr);
    brisk::ModuleObject* values = content->append(nullptr, QStringLiteral("signal_value"));
    brisk::ModuleObject* details = content->append(nullptr, QStringLiteral("signal_detail"));
    for (const Entry& of : m_entries) {
        values->append(nullptr, of.signal.name)->setValue(nullptr, of.shown(), false);
        writeDetail(of.signal, of.forced.isValid(), details->append(nullptr, of.signal.name));
    }
    return content;
}

SignalTable::Entry* SignalTable::entry(const QString& name) {
    const int place = m_places.value(name, -1);
    return place < 0 ? nullptr : &m_entries[place];
}

QString SignalTable::refusal(const QString& name, const QJsonValue& value, bool ofInput) {
    const Entry* of = entry(name);
    if (!of)
        return QStringLiteral("The controller has no signal \"%1\".").arg(name);
    if (isInput(of->signal.type) != ofInput)
        return ofInput ? QStringLiteral("The signal \"%1\" is an output: set it by \"io.set\".").arg(name)
                       : QStringLiteral("The signal \"%1\" is an input: force it by \"io.force\".").arg(name);
    if (fits(of->signal, value))
        return QString();
    return QStringLiteral("The signal \"%1\" takes %2.").arg(name, whatFits(of->signal));
}

void SignalTable::follow(qint64 nowMs) {
    bool isNew = false;
    for (Entry& of : m_entries) {
        if (!of.signal.course)
            continue;
        const QVariant next = valueFor(of.signal, of.signal.course(nowMs));
        isNew = isNew || (next != of.signal.value && !of.forced.isValid());
        of.signal.value = next;
    }
    if (isNew)
        emit changed();
}

} // namespace controller
