#pragma once

#include <cstdint>
#include <string>

namespace velk {

class TestTexts;

/// What a results file says about one test.
struct TestResults {
  /// When it is saved, in the user's locale.
  std::string date;
  std::string encoderName;
  /// Answers given, plus 1.
  std::uint32_t cycle;
  std::uint32_t correct;
};

/// The content of the results file, UTF-8. Line feeds separate the lines; none ends the last one.
std::string resultsText(const TestResults& results, const TestTexts& texts);

}  // namespace velk
