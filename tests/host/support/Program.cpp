#include "Program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "ui/TemporaryFolder.h"

namespace {

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> result;
  for (auto& text : texts) result.push_back(text.data());
  result.push_back(nullptr);
  return result;
}

}  // namespace

std::vector<std::string> Outcome::complaints() const {
  std::vector<std::string> lines;
  std::istringstream stream(err);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

Program::Program(std::filesystem::path folder)
    : folder_(std::move(folder)), executable_(executableUnderTest()) {
  // Outside the folder, so that a test sees what the program itself leaves there.
  out_ = folder_.string() + ".out";
  err_ = folder_.string() + ".err";
}

std::filesystem::path Program::executableUnderTest() {
  return VELK_PROGRAM;
}

std::vector<std::string> Program::environment() const {
  std::vector<std::string> variables;
  for (char** each = ::environ; *each != nullptr; ++each) {
    const std::string_view variable = *each;
    bool isOurs = false;
    for (const auto* const name : {"QT_QPA_PLATFORM=", "DISPLAY=", "WAYLAND_DISPLAY=",
                                   "XDG_RUNTIME_DIR=", "XDG_CONFIG_HOME=", "LANGUAGE=", "TERM="}) {
      if (variable.starts_with(name)) isOurs = true;
    }
    if (!isOurs) variables.emplace_back(variable);
  }
  // Whoever starts the tests may have a terminal that shows nothing in place.
  variables.emplace_back("TERM=xterm");
  variables.push_back("XDG_CONFIG_HOME=" + folder_.string() + ".config");
  if (!languages_.empty()) variables.push_back("LANGUAGE=" + languages_);
  if (hasDisplay_) variables.emplace_back("QT_QPA_PLATFORM=offscreen");
  return variables;
}

pid_t Program::start(const std::vector<std::string>& arguments) {
  std::vector<std::string> words = {executable_.string()};
  words.insert(words.end(), arguments.begin(), arguments.end());
  auto variables = environment();
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC;
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, out_.c_str(), flags, 0600);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, err_.c_str(), flags, 0600);
  posix_spawn_file_actions_addchdir_np(&actions, folder_.c_str());
  pid_t process = 0;
  const int error = posix_spawn(&process, executable_.c_str(), &actions, nullptr,
                                pointers(words).data(), pointers(variables).data());
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) throw std::runtime_error("cannot start " + executable_.string());
  return process;
}

Outcome Program::wait(pid_t process) const {
  int status = 0;
  rusage usage{};
  while (::wait4(process, &status, 0, &usage) < 0) {
    if (errno != EINTR) throw std::runtime_error("cannot wait for the program");
  }
  Outcome outcome;
  outcome.memory = std::int64_t{usage.ru_maxrss} * 1024;
  outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  if (std::filesystem::is_regular_file(out_)) {
    outcome.out = readBytes(out_);
    std::filesystem::remove(out_);
  }
  if (std::filesystem::is_regular_file(err_)) {
    outcome.err = readBytes(err_);
    std::filesystem::remove(err_);
  }
  return outcome;
}

Outcome Program::run(const std::vector<std::string>& arguments) {
  return wait(start(arguments));
}

std::filesystem::path copiedProgram(const std::filesystem::path& folder) {
  const auto original = Program::executableUnderTest();
  const auto program = folder / "bin" / original.filename();
  std::filesystem::create_directories(program.parent_path());
  std::filesystem::copy_file(original, program);
  std::filesystem::copy(original.parent_path().parent_path() / "bundle", folder / "bundle",
                        std::filesystem::copy_options::recursive);
  return program;
}

std::filesystem::path bundleOf(const std::filesystem::path& program) {
  return program.parent_path().parent_path() / "bundle" / "Velk_NordaAACConverter.bundle";
}
