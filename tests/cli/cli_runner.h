// Runs the built zel-cli and captures what it prints.
#ifndef ZEL_TESTS_CLI_CLI_RUNNER_H_
#define ZEL_TESTS_CLI_CLI_RUNNER_H_

#include <sys/wait.h>

#include <cstdio>
#include <string>

namespace zel::testing {

struct CliResult {
  int status = -1;
  std::string out;  // standard output and standard error, in that order
};

// Runs `command` in the shell.
inline CliResult RunShell(const std::string& command) {
  CliResult result;
  std::FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return result;
  char buffer[4096];
  std::size_t n;
  while ((n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) {
    result.out.append(buffer, n);
  }
  const int status = pclose(pipe);
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return result;
}

// `arguments` is appended to the program path as a shell command line.
inline CliResult RunCli(const std::string& arguments) {
  return RunShell(std::string("'") + ZEL_CLI_PATH + "' " + arguments);
}

}  // namespace zel::testing

#endif  // ZEL_TESTS_CLI_CLI_RUNNER_H_
