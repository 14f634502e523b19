#include "platform/rig/StartProgram.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <vector>

namespace velm
{

namespace
{

pid_t start(std::initializer_list<const char *> words, int reportsTo)
{
    std::vector<char *> arguments;
    for (const char *word : words)
        arguments.push_back(const_cast<char *>(word));
    arguments.push_back(nullptr);
    const pid_t pid = fork();
    if (pid != 0)
        return pid;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (reportsTo >= 0)
        dup2(reportsTo, 3);
    execvp(arguments.front(), arguments.data());
    _exit(127);
}

}

pid_t startProgram(std::initializer_list<const char *> words) { return start(words, -1); }

StartedProgram startAndReadLine(std::initializer_list<const char *> words)
{
    int ends[2];
    if (pipe(ends) != 0)
        return {};
    // Out of the way of descriptor 3, and not for the program to inherit.
    const int reading = fcntl(ends[0], F_DUPFD_CLOEXEC, 10);
    const int writing = fcntl(ends[1], F_DUPFD_CLOEXEC, 10);
    close(ends[0]);
    close(ends[1]);
    StartedProgram program{.pid = start(words, writing), .line = {}};
    close(writing);
    char byte = 0;
    while (read(reading, &byte, 1) == 1 && byte != '\n')
        program.line.append(byte);
    close(reading);
    return program;
}

void endProgram(pid_t pid)
{
    kill(pid, SIGKILL);
    waitpid(pid, nullptr, 0);
}

}
