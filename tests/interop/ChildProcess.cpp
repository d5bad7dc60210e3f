#include "tests/interop/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

extern char** environ;

namespace korva::test {

namespace {

[[noreturn]] void fail(int error, const std::string& what) {
    throw std::system_error(error, std::generic_category(), what);
}

/// A pipe whose ends no other program inherits.
class Pipe {
public:
    Pipe() {
        if (pipe(m_ends) != 0) fail(errno, "pipe");
        for (const int end : m_ends)
            fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    ~Pipe() {
        for (const int end : m_ends)
            if (end >= 0) close(end);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    int readEnd() const { return m_ends[0]; }
    int writeEnd() const { return m_ends[1]; }
    int takeReadEnd() { return take(m_ends[0]); }
    int takeWriteEnd() { return take(m_ends[1]); }

private:
    static int take(int& end) {
        const int taken = end;
        end = -1;
        return taken;
    }

    int m_ends[2] = {-1, -1};
};

}  // namespace

ChildProcess::ChildProcess(std::vector<std::string> command) {
    Pipe input;
    Pipe output;
    std::vector<char*> arguments;
    for (std::string& argument : command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input.readEnd(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output.writeEnd(), STDOUT_FILENO);
    const int error =
        posix_spawn(&m_id, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) fail(error, command[0]);
    m_input = input.takeWriteEnd();
    m_output = output.takeReadEnd();
}

ChildProcess::~ChildProcess() {
    if (m_id > 0) {
        kill(m_id, SIGKILL);
        wait();
    }
    close(m_input);
    close(m_output);
}

std::string ChildProcess::readLine() {
    std::string line;
    char c;
    while (read(m_output, &c, 1) == 1 && c != '\n')
        line += c;
    return line;
}

std::string ChildProcess::readAll() {
    std::string text;
    char piece[4096];
    for (;;) {
        const ssize_t count = read(m_output, piece, sizeof piece);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return text;
        text.append(piece, static_cast<std::size_t>(count));
    }
}

int ChildProcess::wait() {
    int status = 0;
    while (waitpid(m_id, &status, 0) < 0 && errno == EINTR)
        continue;
    m_id = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace korva::test
