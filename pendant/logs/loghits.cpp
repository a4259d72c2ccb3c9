#include "loghits.h"

#include "logtext.h"

#include <algorithm>

namespace pendant {

void LogHits::clear() {
    m_older.clear();
    m_newer.clear();
}

void LogHits::prepend(const LogPlace& place, int length) {
    m_older.append({place.offset, place.file, length});
}

void LogHits::append(const LogPlace& place, int length) {
    m_newer.append({place.offset, place.file, length});
    if (count() <= mostHits)
        return;
    // A tenth at a time: to move all for each would take long.
    const int tooMany = std::min(mostHits / 10, m_newer.size() - 1);
    const int ofOlder = std::min(tooMany, m_older.size());
    m_older.resize(m_older.size() - ofOlder);
    m_newer.remove(0, tooMany - ofOlder);
}

void LogHits::insert(const LogPlace& place, int length) {
    const int index = indexAt(place) + 1;
    const int older = m_older.size();
    const Hit hit{place.offset, place.file, length};
    if (index <= older)
        m_older.insert(older - index, hit);
    else
        m_newer.insert(index - older, hit);
}

void LogHits::dropBefore(int file) {
    while (!m_older.isEmpty() && m_older.last().file < file)
        m_older.removeLast();
    const auto stays = [file](const Hit& hit) { return hit.file >= file; };
    m_newer.erase(m_newer.begin(), std::find_if(m_newer.begin(), m_newer.end(), stays));
}

void LogHits::dropFrom(const LogPlace& place) {
    while (!m_newer.isEmpty() && !(m_newer.last().place() < place))
        m_newer.removeLast();
    const auto stays = [place](const Hit& hit) { return hit.place() < place; };
    m_older.erase(m_older.begin(), std::find_if(m_older.begin(), m_older.end(), stays));
}

LogPlace LogHits::first() const {
    return count() > 0 ? at(0).place() : end();
}

LogPlace LogHits::end() const {
    return m_text->end();
}

LogPlace LogHits::next(const LogPlace& row) const {
    const int index = indexAt(row);
    const LogPlace within = m_text->next(row);
    if (index >= 0 && holds(index, within))
        return within;
    return index + 1 < count() ? at(index + 1).place() : end();
}

LogPlace LogHits::previous(const LogPlace& row) const {
    int index = indexAt(row);
    if (index < 0)
        return LogPlace();
    if (row != at(index).place() && holds(index, row))
        return m_text->previous(row);
    if (holds(index, row))
        --index;
    return index < 0 ? LogPlace() : m_text->rowAt({at(index).file, at(index).offset + at(index).length - 1});
}

LogPlace LogHits::rowAt(const LogPlace& place) const {
    const int index = indexAt(place);
    if (index >= 0 && holds(index, place))
        return m_text->rowAt(place);
    return index + 1 < count() ? at(index + 1).place() : end();
}

double LogHits::fractionBefore(const LogPlace& row) const {
    const int index = indexAt(row);
    if (index < 0)
        return 0;
    const double within = holds(index, row) ? static_cast<double>(row.offset - at(index).offset) / at(index).length : 1;
    return (index + within) / count();
}

LogPlace LogHits::rowAtFraction(double fraction) const {
    if (count() == 0)
        return end();
    const double exact = fraction * count();
    const int index = std::min(static_cast<int>(exact), count() - 1);
    const double within = std::min(exact - index, 1.0) * at(index).length;
    return m_text->rowAt(
        {at(index).file, at(index).offset + std::min<qint64>(static_cast<qint64>(within), at(index).length - 1)});
}

const LogHits::Hit& LogHits::at(int index) const {
    const int older = m_older.size();
    return index < older ? m_older.at(older - 1 - index) : m_newer.at(index - older);
}

int LogHits::indexAt(const LogPlace& place) const {
    int low = 0;
    int high = count();
    while (low < high) {
        const int middle = (low + high) / 2;
        if (place < at(middle).place())
            high = middle;
        else
            low = middle + 1;
    }
    return low - 1;
}

bool LogHits::holds(int index, const LogPlace& place) const {
    const Hit& hit = at(index);
    return place.file == hit.file && place.offset >= hit.offset && place.offset < hit.offset + hit.length;
}

} // namespace pendant
