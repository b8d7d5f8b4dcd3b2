// bench_commands RUNS PROGRAM ARGUMENT... [-- PROGRAM ARGUMENT...]: runs one or two commands in turn, each
// once for nothing and then RUNS times. Prints the median milliseconds and the most kilobytes of memory of
// each, the first command's before the second's. Fails when a command fails.

#include "Figures.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cstdlib>

namespace {

struct Command
{
    std::vector<char *> arguments;
    std::vector<double> times;
    long kilobytes = 0;
};

void run(Command &command, bool counts)
{
    QElapsedTimer timer;
    timer.start();
    const pid_t child = fork();
    if (child == 0) {
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        execvp(command.arguments.front(), command.arguments.data());
        std::perror(command.arguments.front());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        std::fprintf(stderr, "%s failed\n", command.arguments.front());
        std::exit(1);
    }
    if (!counts)
        return;
    command.times.push_back(figures::elapsedMs(timer));
    command.kilobytes = std::max(command.kilobytes, usage.ru_maxrss);
}

} // namespace

int main(int argc, char **argv)
{
    const int runs = argc > 2 ? std::atoi(argv[1]) : 0;
    std::vector<Command> commands(1);
    for (int i = 2; i < argc; ++i) {
        if (std::strcmp(argv[i], "--") == 0 && commands.size() == 1)
            commands.emplace_back();
        else
            commands.back().arguments.push_back(argv[i]);
    }
    for (Command &command : commands) {
        if (command.arguments.empty() || runs < 1)
            return 2;
        command.arguments.push_back(nullptr);
    }
    for (int i = 0; i <= runs; ++i) {
        for (Command &command : commands)
            run(command, i > 0);
    }
    for (const Command &command : commands)
        std::printf("%.3f %ld ", figures::median(command.times), command.kilobytes);
    std::printf("\n");
    return 0;
}
