#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

namespace pendant {

/// What the head of an ELF file says about whether this process can load it.
class ElfHeader {
    Q_DECLARE_TR_FUNCTIONS(pendant::ElfHeader)

public:
    /// How many bytes of a file are looked at.
    static const int size = 20;

    /// \param head the first `size` bytes of a file; fewer when it is shorter
    explicit ElfHeader(const QByteArray& head);

    /// Why this process cannot load the file, to be read after the file's name: "is built for ...". Empty when nothing
    /// in the head speaks against it.
    QString problem() const;

private:
    int byteAt(int offset) const;
    int numberAt(int offset) const;

    QByteArray m_head;
};

/// The problem of the file at `path`, also when it cannot be read; empty when there is none.
QString sharedObjectProblem(const QString& path);

} // namespace pendant
