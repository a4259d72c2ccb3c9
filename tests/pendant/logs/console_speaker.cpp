// A program that says things the way the pendant does; tests listen to it.

#include "logs/consolecolours.h"

#include <QDebug>

#include <cstring>
#include <thread>
#include <vector>

namespace {

void sayMany() {
    for (int i = 0; i < 500; ++i)
        qDebug().noquote() << QStringLiteral("\x1b[31mred %1\x1b[0m").arg(i);
}

void sayManyAtOnce() {
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back(sayMany);
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace

int main(int argc, char** argv) {
    pendant::keepColoursOnTerminals();
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--fatal") == 0)
            qFatal("%s", "\x1b[31mthe end\x1b[0m");
        if (std::strcmp(argv[i], "--warning") == 0)
            qWarning("%s", "\x1b[31mcareful\x1b[0m");
        if (std::strcmp(argv[i], "--threads") == 0)
            sayManyAtOnce();
        else
            qDebug().noquote() << QString::fromUtf8(argv[i]);
    }
}
