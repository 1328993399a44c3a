#pragma once

#include <cstdio>

/// The frame writer's conversation: says "ready", then answers each line "<command> <number>
/// <number>" of the standard input with "ok" or "failed", as run(command, number, number) of the
/// writer says, until the input ends.
template <typename Writer>
int serveCommands(int argc, char* argv[])
{
    const auto say = [](const char* line) {
        std::printf("%s\n", line);
        std::fflush(stdout);
    };
    if (argc != 3)
        return 2;
    Writer writer(argv[1], argv[2]);
    say("ready");
    char line[128];
    while (std::fgets(line, sizeof(line), stdin)) {
        char command[64] = "";
        long number = 0;
        long second = 0;
        std::sscanf(line, "%63s %ld %ld", command, &number, &second);
        say(writer.run(command, number, second) ? "ok" : "failed");
    }
    return 0;
}
