#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "view/listening_test/Verdict.h"

namespace ui {
class Bundle;
class Localization;
}  // namespace ui

namespace velk {

/// The listening test's texts and numbers in the user's language.
class TestTexts {
 public:
  /// Both must outlive this object.
  TestTexts(const ui::Bundle& bundle, const ui::Localization& localization)
      : bundle_(bundle), localization_(localization) {}

  std::string text(std::string_view key) const;
  /// The text with its placeholders filled in order.
  std::string text(std::string_view key, const std::vector<std::string>& arguments) const;
  std::string plain(std::uint32_t number) const;

  /// A format text filled with `correct`, `trials` and the share of correct answers. `trials` must
  /// not be 0.
  std::string score(std::string_view key, std::uint32_t trials, std::uint32_t correct) const;
  /// The text of a verdict on that many trials.
  std::string verdict(Verdict verdict, std::uint32_t trials) const;

 private:
  const ui::Bundle& bundle_;
  const ui::Localization& localization_;
};

}  // namespace velk
