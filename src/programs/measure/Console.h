#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>

namespace host::measure {

/// Standard output and error, and a line at the bottom of a terminal that shows progress. Main
/// thread only.
class Console {
 public:
  Console();
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;
  /// Removes the progress line.
  ~Console();

  /// Writes to standard output. Throws `Failure`.
  void say(const std::string& text);
  /// A line on standard error, after the program's name.
  void complain(const std::string& text);

  /// Whether standard error is a terminal. Without one, nothing of the progress is shown.
  bool showsProgress() const { return showsProgress_; }
  /// Shows the line in place of the last one.
  void setProgress(const std::string& line);
  void clearProgress();

  /// Columns of the terminal that standard output goes to, or 0 where it goes elsewhere. Of a
  /// terminal that does not know them, what the variable COLUMNS says.
  static std::size_t outputWidth();
  static std::size_t errorWidth();
  /// Whether standard output may be coloured: a terminal whose user has not set NO_COLOR.
  static bool isColored();

 private:
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  void writeError(const std::string& text);

  /// Another way to standard error: while a file is opened, nothing gets through the usual one.
  std::unique_ptr<std::FILE, Close> error_;
  bool showsProgress_;
  bool hasProgress_ = false;
};

}  // namespace host::measure
