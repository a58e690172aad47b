#pragma once

#include <cstddef>
#include <mutex>
#include <string>

namespace host {

/// A program's voice: standard output, lines on standard error that begin with the program's name,
/// and a line at the bottom of a terminal that shows progress. Any thread.
class Terminal {
 public:
  explicit Terminal(std::string program);
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  /// Removes the progress line.
  ~Terminal();

  /// Writes to standard output, as it is. Throws `Failure` when it does not take everything.
  void say(const std::string& text);
  /// One line on standard error, whatever the text holds: line ends become blanks, and what would
  /// move the cursor a question mark.
  void complain(const std::string& text);
  /// The same for what the user should know while the program carries on.
  void warn(const std::string& text);

  /// Whether standard error is a terminal that can show progress. If not, `setProgress` does
  /// nothing.
  bool showsProgress() const { return showsProgress_; }
  /// Shows the line in place of the last one.
  void setProgress(const std::string& line);
  void clearProgress();

  /// Columns of the terminal that standard output goes to, or 0 where it goes elsewhere. For a
  /// terminal that does not know its width, what the variable COLUMNS says.
  static std::size_t outputWidth();
  static std::size_t errorWidth();
  /// Whether standard output may be coloured: a terminal whose user has not set NO_COLOR.
  static bool isColored();

 private:
  void removeProgress();

  const std::string program_;
  const bool showsProgress_;
  std::mutex mutex_;
  bool hasProgress_ = false;
};

}  // namespace host
