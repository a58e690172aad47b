#include "view/listening_test/Verdict.h"

#include "view/listening_test/PassThreshold.h"

namespace velk {

namespace {

Verdict judge(std::uint32_t trials, std::uint32_t correct) {
  return correct < requiredCorrectAnswers(trials) ? Verdict::Failed : Verdict::Passed;
}

}  // namespace

Verdict sheetVerdict(std::uint32_t trials, std::uint32_t correct) {
  constexpr std::uint32_t kFewestTrials = 9;
  return trials < kFewestTrials ? Verdict::Incomplete : judge(trials, correct);
}

Verdict fileVerdict(std::uint32_t trials, std::uint32_t correct) {
  constexpr std::uint32_t kFewestTrials = 10;
  return trials < kFewestTrials ? Verdict::Incomplete : judge(trials, correct);
}

}  // namespace velk
