#include "logtext.h"

#include <algorithm>

namespace pendant {

namespace {

const int blocksRemembered = 16;

LogText::Change worse(LogText::Change left, LogText::Change right) {
    return std::max(left, right);
}

} // namespace

LogText::LogText() : m_blocks(blocksRemembered) {}

LogText::Change LogText::setFiles(const QVector<LogFile>& files) {
    int gone = 0;
    while (gone < m_files.size() && (files.isEmpty() || m_files.at(gone).file != files.first()))
        ++gone;
    const int kept = m_files.size() - gone;
    const bool sameThen =
        kept <= files.size() && std::equal(m_files.cbegin() + gone, m_files.cend(), files.cbegin(),
                                           [](const File& a, const LogFile& b) { return a.file == b; });
    if (!sameThen || (kept == 0 && !m_files.isEmpty())) {
        m_firstFile += m_files.size();
        m_files.clear();
        begin(files, 0);
        return Anew;
    }
    Change change = gone > 0 || kept < files.size() ? Grown : Unchanged;
    m_files.erase(m_files.begin(), m_files.begin() + gone);
    m_firstFile += gone;
    for (int i = 0; i < m_files.size(); ++i)
        change = worse(change, lookAt(i));
    begin(files, kept);
    return change == Anew ? startAnew() : change;
}

LogText::Change LogText::refresh() {
    if (m_files.isEmpty())
        return Unchanged;
    const int last = m_files.size() - 1;
    m_probed = (m_probed + 1) % m_files.size();
    Change change = lookAt(last);
    if (last > 0)
        change = worse(change, lookAt(last - 1));
    for (const int index : {m_grown - m_firstFile, m_probed}) {
        if (index >= 0 && index < last - 1)
            change = worse(change, lookAt(index));
    }
    sum();
    return change == Anew ? startAnew() : change;
}

qint64 LogText::fileSize(int number) const {
    return has(number) ? m_files.at(number - m_firstFile).look.size : 0;
}

QString LogText::problem(QString* path) const {
    for (int i = m_files.size() - 1; i >= 0; --i) {
        if (m_files.at(i).look.problem.isEmpty())
            continue;
        *path = m_files.at(i).file.path;
        return m_files.at(i).look.problem;
    }
    return QString();
}

QByteArray LogText::bytes(const LogPlace& from, qint64 length) const {
    if (!has(from.file))
        return QByteArray();
    const qint64 most = std::max<qint64>(0, fileSize(from.file) - from.offset);
    return readLogFile(file(from.file).path, from.offset, std::min(length, most));
}

qint64 LogText::distance(const LogPlace& from, const LogPlace& to) const {
    const auto before = [this](const LogPlace& place) {
        return has(place.file) ? m_files.at(place.file - m_firstFile).before + place.offset : 0;
    };
    return before(to) - before(from);
}

QDate LogText::dayOf(int number) const {
    const QDate day = has(number) ? file(number).day : QDate();
    return day.isValid() ? day : QDate::currentDate();
}

LogText::Change LogText::lookAt(int index) {
    File& file = m_files[index];
    const LogFileLook before = file.look;
    file.look = lookAtLogFile(file.file.path);
    if (!hasOnlyGrown(before, file.look))
        return Anew;
    if (file.look.size > before.size && index < m_files.size() - 1)
        m_grown = m_firstFile + index;
    return file.look.size != before.size || file.look.problem != before.problem ? Grown : Unchanged;
}

void LogText::begin(const QVector<LogFile>& files, int from) {
    for (int i = from; i < files.size(); ++i) {
        File file;
        file.file = files.at(i);
        file.look = lookAtLogFile(file.file.path);
        m_files.append(file);
    }
    sum();
}

// With other numbers, so that neither a place nor a block of before is taken for one of now.
LogText::Change LogText::startAnew() {
    m_firstFile += m_files.size();
    return Anew;
}

void LogText::sum() {
    m_size = 0;
    for (File& file : m_files) {
        file.before = m_size;
        m_size += file.look.size;
    }
}

} // namespace pendant
