#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <cstring>
#include <elf.h>

/// How a shared object exports one of its symbols: STB_GLOBAL, STB_WEAK, STB_GNU_UNIQUE, ...
/// \return -1 when the file defines no such symbol, or is no 64-bit ELF file
inline int bindingOf(const QByteArray& symbol, const QString& path) {
    QFile file(path);
    const QByteArray data = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    Elf64_Ehdr head;
    if (data.size() < int(sizeof head) || !data.startsWith(ELFMAG) || data.at(EI_CLASS) != ELFCLASS64)
        return -1;
    std::memcpy(&head, data.constData(), sizeof head);
    const auto sectionAt = [&](unsigned index) {
        Elf64_Shdr section;
        std::memcpy(&section, data.constData() + head.e_shoff + index * sizeof section, sizeof section);
        return section;
    };
    for (unsigned i = 0; i < head.e_shnum; ++i) {
        const Elf64_Shdr symbols = sectionAt(i);
        if (symbols.sh_type != SHT_DYNSYM)
            continue;
        const char* names = data.constData() + sectionAt(symbols.sh_link).sh_offset;
        for (Elf64_Xword at = 0; at < symbols.sh_size; at += sizeof(Elf64_Sym)) {
            Elf64_Sym entry;
            std::memcpy(&entry, data.constData() + symbols.sh_offset + at, sizeof entry);
            if (entry.st_shndx != SHN_UNDEF && symbol == names + entry.st_name)
                return ELF64_ST_BIND(entry.st_info);
        }
    }
    return -1;
}
