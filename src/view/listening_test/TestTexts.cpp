#include "view/listening_test/TestTexts.h"

#include "ui/Bundle.h"
#include "ui/Captions.h"
#include "ui/Localization.h"
#include "view/listening_test/PassThreshold.h"

namespace velk {

std::string TestTexts::text(std::string_view key) const {
  return bundle_.localizedString(key, ui::kStringsTable);
}

std::string TestTexts::text(std::string_view key, const std::vector<std::string>& arguments) const {
  return ui::formatted(text(key), arguments);
}

std::string TestTexts::plain(std::uint32_t number) const {
  return localization_.plain(number);
}

std::string TestTexts::score(std::string_view key, std::uint32_t trials,
                             std::uint32_t correct) const {
  const float share = static_cast<float>(correct) / static_cast<float>(trials);
  return text(key, {plain(correct), plain(trials), localization_.percent(share)});
}

std::string TestTexts::verdict(Verdict verdict, std::uint32_t trials) const {
  switch (verdict) {
    case Verdict::Incomplete:
      return text(
          "Test Incomplete. You need to perform at least 10 tests for your results to be "
          "statistically significant.");
    case Verdict::Failed:
      return text(
          "You were not successful in identifying the encoded audio in a statistically "
          "significant manner. You needed %@ correct answers to pass this test",
          {plain(requiredCorrectAnswers(trials))});
    case Verdict::Passed:
      return text("You successfully identified the encoded audio with a 95% confidence rating.");
  }
  return {};
}

}  // namespace velk
