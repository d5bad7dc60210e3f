// How the tests run PHP.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace korva::test {

/// The command that runs one of our scripts, whatever the machine's settings say.
inline std::vector<std::string> phpCommand(const std::string& script,
                                           std::initializer_list<std::string> arguments) {
    std::vector<std::string> command = {
        KORVA_TEST_PHP,  "-d", "display_errors=stderr",         "-d", "error_reporting=-1", "-d",
        "log_errors=0",  "-d", "default_socket_timeout=20",     "-d", "precision=17",       "-d",
        "html_errors=0", "-f", KORVA_TEST_PHP_DIR "/" + script, "--"};
    command.insert(command.end(), arguments);
    return command;
}

}  // namespace korva::test
