// Compares the program with a bare window that has the same imports: start and memory.
#include "bench/program/Starts.h"

#include <QCoreApplication>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const QTemporaryDir home;
    compareStarts(home);
}
