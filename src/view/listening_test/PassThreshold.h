#pragma once

#include <cstdint>

namespace velk {

/// Answers in a full test.
inline constexpr std::uint32_t kTrialsInTest = 20;

/// How many of `trialSize` answers must be correct to pass: a table by design, not a binomial
/// quantile. A size that it does not list needs as many as a full test, which no test of fewer than
/// 10 answers can reach.
std::uint32_t requiredCorrectAnswers(std::uint32_t trialSize);

}  // namespace velk
