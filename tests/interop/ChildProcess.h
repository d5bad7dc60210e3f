/// A program that a test starts beside itself.
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace korva::test {

/// A running program whose standard input and output are pipes; its errors go where ours go.
///
/// It does not outlive this object. Should the test itself be killed, the program sees the end of
/// its input.
class ChildProcess {
public:
    /// Starts `command`: the program's path, then its arguments.
    /// @throws std::system_error it cannot be started
    explicit ChildProcess(std::vector<std::string> command);

    /// Kills the program if it still runs.
    ~ChildProcess();

    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Waits for the next line and gives it without its end; what there is when the output ends.
    std::string readLine();

    /// Everything up to the end of the output.
    std::string readAll();

    /// Waits for the program's end and gives its exit status; a signal's number plus 128 if one
    /// ended it.
    int wait();

private:
    pid_t m_id = -1;
    int m_input = -1;
    int m_output = -1;
};

}  // namespace korva::test
