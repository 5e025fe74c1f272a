// Starting programs natively with posix_spawnp.
#include "platform/spawn.h"

#include <cerrno>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace mx {

namespace {

std::vector<char *> argvOf(const std::vector<std::string> &words) {
    std::vector<char *> out;
    for (const std::string &w : words) out.push_back(const_cast<char *>(w.c_str()));
    out.push_back(nullptr);
    return out;
}

// The child's status, retried when a signal interrupts the wait.
int waitFor(pid_t pid) {
    int status = 0;
    while (waitpid(pid, &status, 0) < 0)
        if (errno != EINTR) return -1;
    return status;
}

}  // namespace

int32_t mxp_SpawnAndWait(const std::vector<std::string> &argv, int32_t *exitCode) {
    if (argv.empty()) return ENOENT;
    std::vector<char *> args = argvOf(argv);
    pid_t pid;
    int err = posix_spawnp(&pid, args[0], nullptr, nullptr, args.data(), environ);
    if (err) return err;
    int status = waitFor(pid);
    if (status < 0) return ECHILD;
    *exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : WIFSIGNALED(status) ? 128 + WTERMSIG(status) : 0;
    return 0;
}

int32_t mxp_SpawnDetached(const std::vector<std::string> &argv) {
    if (argv.empty()) return ENOENT;
    std::vector<char *> args = argvOf(argv);
    // An intermediate child starts the program and ends at once, so the
    // program is adopted by init and reaped there; its exit status carries
    // the start's error number back.
    pid_t middle = fork();
    if (middle < 0) return errno;
    if (middle == 0) {
        pid_t pid;
        int err = posix_spawnp(&pid, args[0], nullptr, nullptr, args.data(), environ);
        _exit(err > 0 && err < 256 ? err : err ? 255 : 0);
    }
    int status = waitFor(middle);
    if (status < 0 || !WIFEXITED(status)) return ECHILD;
    return WEXITSTATUS(status);
}

}  // namespace mx
