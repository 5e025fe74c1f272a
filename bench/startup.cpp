// startup: the start-up cost of a whole process. Starts COMMAND K times, one
// after the other, with its output thrown away, and prints the mean wall time
// from start to exit in milliseconds.
// Usage: startup K COMMAND [ARG...]
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

extern char **environ;

int main(int argc, char **argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: startup K COMMAND [ARG...]\n");
        return 64;
    }
    long k = std::atol(argv[1]);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    auto start = std::chrono::steady_clock::now();
    for (long i = 0; i < k; ++i) {
        pid_t pid;
        int status = 0;
        if (posix_spawn(&pid, argv[2], &actions, nullptr, argv + 2, environ) != 0 ||
            waitpid(pid, &status, 0) < 0 || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            std::fprintf(stderr, "startup: %s failed\n", argv[2]);
            return 1;
        }
    }
    auto end = std::chrono::steady_clock::now();
    posix_spawn_file_actions_destroy(&actions);
    std::printf("%.2f\n", std::chrono::duration<double, std::milli>(end - start).count() / double(k));
    return 0;
}
