#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// What a run of the program came to.
struct Outcome {
  /// Exit status, or minus the number of the signal that ended it.
  int status = 0;
  std::string out;
  std::string err;
  /// The most memory that it ever had, bytes.
  std::int64_t memory = 0;

  std::vector<std::string> complaints() const;
};

/// The real program of this test as a process of its own, off screen and in a folder of its own.
class Program {
 public:
  /// Standard output and error go to files in `folder`, which is also the working folder.
  explicit Program(std::filesystem::path folder);

  /// Another copy of it.
  void setExecutable(std::filesystem::path executable) { executable_ = std::move(executable); }
  void setStandardOutput(std::filesystem::path path) { out_ = std::move(path); }
  void setStandardError(std::filesystem::path path) { err_ = std::move(path); }
  void withoutDisplay() { hasDisplay_ = false; }
  /// The user's languages in order of preference, as gettext has them: "fr:de".
  void setLanguages(std::string languages) { languages_ = std::move(languages); }

  /// The program that this test is about.
  static std::filesystem::path executableUnderTest();

  Outcome run(const std::vector<std::string>& arguments);
  pid_t start(const std::vector<std::string>& arguments);
  Outcome wait(pid_t process) const;

 private:
  std::vector<std::string> environment() const;

  std::filesystem::path folder_;
  std::filesystem::path executable_;
  std::filesystem::path out_;
  std::filesystem::path err_;
  bool hasDisplay_ = true;
  std::string languages_;
};

/// A copy of the program with its bundle, as they lie together, to be broken. Gives the program.
std::filesystem::path copiedProgram(const std::filesystem::path& folder);
/// The bundle of such a copy.
std::filesystem::path bundleOf(const std::filesystem::path& program);
