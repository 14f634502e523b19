#pragma once

#include <QByteArray>

#include <sys/types.h>

#include <initializer_list>

namespace velm
{

// A program in the background that ends with this process, whatever happens to it.
pid_t startProgram(std::initializer_list<const char *> words);

struct StartedProgram {
    pid_t pid;
    QByteArray line;
};

// The same, and what it says on descriptor 3 when it is ready; an empty line when it ended instead.
StartedProgram startAndReadLine(std::initializer_list<const char *> words);

// Ends one of these.
void endProgram(pid_t pid);

}
