#pragma once

#include <cstdint>
#include <string>

namespace velk {

class TestTexts;

/// What a results file says of one test.
struct TestResults {
  /// When it is saved, as the user's locale writes it.
  std::string date;
  std::string encoderName;
  /// Answers given, plus 1.
  std::uint32_t cycle;
  std::uint32_t correct;
};

/// The content of the results file, UTF-8: lines end in a line feed, the last one in nothing.
std::string resultsText(const TestResults& results, const TestTexts& texts);

}  // namespace velk
