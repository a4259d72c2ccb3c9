#include "elf.h"

#include "elfsegments.h"

#include <QFile>

#include <cstddef>
#include <elf.h>

namespace pendant {

namespace {

#if defined(__x86_64__)
const int ownMachine = EM_X86_64;
#elif defined(__aarch64__)
const int ownMachine = EM_AARCH64;
#else
#error "The pendant runs on x86-64 and on 64-bit Arm."
#endif

QString machineName(int machine) {
    switch (machine) {
    case EM_X86_64:
        return QStringLiteral("x86-64");
    case EM_AARCH64:
        return ElfHeader::tr("64-bit Arm (aarch64)");
    case EM_386:
        return ElfHeader::tr("32-bit x86");
    case EM_ARM:
        return ElfHeader::tr("32-bit Arm");
    default:
        return ElfHeader::tr("a machine of type %1").arg(machine);
    }
}

} // namespace

ElfHeader::ElfHeader(const QByteArray& head) : m_head(head) {}

int ElfHeader::byteAt(int offset) const {
    return static_cast<unsigned char>(m_head.at(offset));
}

int ElfHeader::numberAt(int offset) const {
    return byteAt(EI_DATA) == ELFDATA2MSB ? byteAt(offset) << 8 | byteAt(offset + 1)
                                          : byteAt(offset + 1) << 8 | byteAt(offset);
}

QString ElfHeader::problem() const {
    if (m_head.isEmpty())
        return tr("is empty");
    if (!m_head.startsWith(ELFMAG))
        return tr("is not an ELF file");
    if (m_head.size() < size)
        return tr("is cut off in its ELF header");
    const int machine = numberAt(offsetof(Elf64_Ehdr, e_machine));
    if (machine != ownMachine)
        return tr("is built for %1; this pendant runs on %2").arg(machineName(machine), machineName(ownMachine));
    if (byteAt(EI_CLASS) != ELFCLASS64)
        return tr("is a 32-bit file; this pendant needs 64-bit ones");
    if (byteAt(EI_DATA) != ELFDATA2LSB)
        return tr("is a big-endian file; this pendant needs little-endian ones");
    if (numberAt(offsetof(Elf64_Ehdr, e_type)) != ET_DYN)
        return tr("is not a shared object");
    return QString();
}

QString sharedObjectProblem(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ElfHeader::tr("cannot be read: %1").arg(file.errorString());
    const QString problem = ElfHeader(file.read(ElfHeader::size)).problem();
    if (!problem.isEmpty())
        return problem;
    const qint64 needed = neededSize(file);
    if (file.size() < needed)
        return ElfHeader::tr("is cut off: it has %1 bytes of at least %2").arg(file.size()).arg(needed);
    return QString();
}

} // namespace pendant
