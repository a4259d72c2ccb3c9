#include "elfsegments.h"

#include <algorithm>
#include <cstring>
#include <elf.h>
#include <limits>

namespace pendant {

namespace {

// A field of a broken file may say anything: what does not fit counts as "more than any file has".
qint64 endOf(quint64 offset, quint64 size) {
    const quint64 most = std::numeric_limits<qint64>::max();
    return static_cast<qint64>(offset > most || size > most - offset ? most : offset + size);
}

template <typename Record> bool readAt(QFile& file, qint64 offset, Record& record) {
    QByteArray bytes;
    if (file.seek(offset))
        bytes = file.read(sizeof record);
    if (bytes.size() != static_cast<int>(sizeof record))
        return false;
    std::memcpy(&record, bytes.constData(), sizeof record);
    return true;
}

} // namespace

qint64 neededSize(QFile& file) {
    Elf64_Ehdr header;
    if (!readAt(file, 0, header))
        return sizeof header;
    qint64 needed = std::max(endOf(header.e_phoff, quint64(header.e_phnum) * header.e_phentsize),
                             endOf(header.e_shoff, quint64(header.e_shnum) * header.e_shentsize));
    for (int i = 0; i < header.e_phnum; ++i) {
        Elf64_Phdr segment;
        if (!readAt(file, endOf(header.e_phoff, quint64(i) * header.e_phentsize), segment))
            break;
        if (segment.p_type == PT_LOAD || segment.p_type == PT_DYNAMIC)
            needed = std::max(needed, endOf(segment.p_offset, segment.p_filesz));
    }
    return needed;
}

} // namespace pendant
