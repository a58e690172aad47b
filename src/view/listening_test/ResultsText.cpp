#include "view/listening_test/ResultsText.h"

#include "view/listening_test/TestTexts.h"
#include "view/listening_test/Verdict.h"

namespace velk {

std::string resultsText(const TestResults& results, const TestTexts& texts) {
  const std::uint32_t trials = results.cycle - 1;
  std::string text = texts.text("Listening Test Results\n======================\n\n");
  text += texts.text("Date: %@\n\n", {results.date});
  text += texts.text("Encoder: %@\n", {results.encoderName});
  text += texts.text("Test Cycles: %@\n", {texts.plain(trials)});
  // Unlike the sheet, the file counts a single answer as aborted; the verdict follows on the same
  // line.
  text += trials <= 1 ? texts.text("0/0- Test aborted")
                      : texts.score("Results: %@/%@ (%@ Correct)\n\n", trials, results.correct);
  text += texts.verdict(fileVerdict(trials, results.correct), trials);
  return text;
}

}  // namespace velk
