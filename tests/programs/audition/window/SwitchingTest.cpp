#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <utility>

#include "ListeningRoom.h"
#include "Sound.h"
#include "SwitchMeasures.h"
#include "converter/unit/ConverterUnit.h"
#include "ui/TemporaryFolder.h"
#include "view/listening_test/Draws.h"

/// What a change of the monitored signal sounds like, over a thousand switches in a listening test.
/// The listener knows when they clicked and hears what follows. A delay, a dip or a click tells
/// nothing about the signal switched to if
///  - one of the two signals is heard, sample by sample, before a switch and soon after it,
///  - the share of the new signal grows with the samples since the click along one curve, the same
///    for both directions and every switch, and
///  - a click that changes nothing leaves the signal as it is.
/// Everything else in the sound of a switch then comes from the two signals. Steps and dips are
/// measured as well, at positions where a switch went one way in one recording and the other way in
/// another, so that the position makes no difference.
namespace {

constexpr std::uint32_t kRate = 44100;
constexpr std::size_t kSwitches = 1000;

/// A low bit rate, so that the encoded signal differs much from the source.
host::AuditionOptions lowRate() {
  host::AuditionOptions options;
  options.setting = converter::hasHighEfficiencyEncoder() ? host::EncoderSetting{1, 0, 6}
                                                          : host::EncoderSetting{0, 0, 7};
  return options;
}

class Recordings {
 public:
  explicit Recordings(std::size_t frames) {
    writeSound(folder_ / "mix.wav", noise(kRate, 2, frames));
  }
  Sound mix() const { return readSound(folder_ / "mix.wav"); }

  /// Runs `listens` in a room where a test in learning mode, which never ends, is running: A is the
  /// source, and the source is heard.
  template <class Listens>
  Sound of(Listens listens) {
    ListeningRoom room(folder_ / "mix.wav", folder_ / "listened.wav", lowRate());
    room.showTestPage();
    room.click("learnModeButton");
    listening_test::nextDrawMakesASource(true);
    room.click("aIsSourceButton");
    listens(room);
    room.finish();
    return readSound(folder_ / "listened.wav");
  }

 private:
  TemporaryFolder folder_;
};

/// Clicks at random on source, A, B and an answer until the signal heard has changed `switches`
/// times, with `shortest` to `longest` frames between clicks.
Listened listenToSwitches(std::size_t switches, std::size_t shortest, std::size_t longest) {
  std::mt19937 random(20);
  Listened listened;
  // Many clicks change nothing.
  Recordings recordings(2 * switches * (shortest + longest));
  listened.source = recordings.mix();
  listened.output = recordings.of([&](ListeningRoom& room) {
    const auto pause = [&] {
      const auto frames = shortest + random() % (longest - shortest);
      room.listen(frames, 32 + random() % 480);
    };
    const std::array buttons = {"sourceButton", "aButton", "bButton",        "aButton",
                                "bButton",      "aButton", "aIsSourceButton"};
    pause();
    for (std::size_t done = 0; done < switches;) {
      listening_test::nextDrawMakesASource(random() % 2 == 0);
      Click click{room.position(), room.monitorsSource(), false};
      room.click(buttons[random() % buttons.size()]);
      click.toSource = room.monitorsSource();
      listened.clicks.push_back(click);
      done += click.switches() ? 1 : 0;
      pause();
    }
  });
  const auto end = listened.output.frames();
  listened.mirrored = recordings.of([&](ListeningRoom& room) {
    room.click("bButton");
    for (const auto& click : listened.clicks) {
      room.listen(click.frame - room.position());
      if (click.switches()) room.click(click.toSource ? "bButton" : "aButton");
    }
    room.listen(end - room.position());
  });
  listened.encoded = recordings.of([&](ListeningRoom& room) {
    room.click("bButton");
    room.listen(end);
  });
  return listened;
}

class Switching : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    listened_ = new Listened(listenToSwitches(kSwitches, kFade + 60, 3 * kFade));
  }
  static void TearDownTestSuite() { delete std::exchange(listened_, nullptr); }

  static const Listened& listened() { return *listened_; }
  static std::vector<Click> switchesTo(bool source) {
    std::vector<Click> found;
    std::copy_if(listened().clicks.begin(), listened().clicks.end(), std::back_inserter(found),
                 [&](const Click& click) { return click.switches() && click.toSource == source; });
    return found;
  }

 private:
  static Listened* listened_;
};

Listened* Switching::listened_ = nullptr;

TEST_F(Switching, LeavesTheSignalUntouchedButForTenMillisecondsAfterASwitch) {
  EXPECT_GE(switchesTo(true).size(), kSwitches / 3);
  EXPECT_GE(switchesTo(false).size(), kSwitches / 3);
  EXPECT_GE(listened().clicks.size(), kSwitches + kSwitches / 4);
  std::size_t at = 0;
  bool isSource = true;
  const auto expectOneSignal = [&](std::size_t end) {
    for (std::size_t channel = 0; channel < 2; ++channel) {
      const auto& signal = listened().signal(isSource, channel);
      const auto& output = listened().output.planes[channel];
      ASSERT_TRUE(std::equal(output.begin() + static_cast<std::ptrdiff_t>(at),
                             output.begin() + static_cast<std::ptrdiff_t>(end),
                             signal.begin() + static_cast<std::ptrdiff_t>(at)))
          << at;
    }
  };
  // The room starts with the encoded signal, and the test with a fade away from it.
  at = kFade;
  for (const auto& click : listened().clicks) {
    ASSERT_NO_FATAL_FAILURE(expectOneSignal(click.frame));
    if (click.switches()) at = click.frame + kFade;
    isSource = click.toSource;
  }
  ASSERT_NO_FATAL_FAILURE(expectOneSignal(listened().output.frames()));
}

TEST_F(Switching, BringsTheNewSignalInAlongOneCurveWhicheverItIs) {
  const auto toSource = shareOfTheNew(listened(), switchesTo(true));
  const auto toEncoded = shareOfTheNew(listened(), switchesTo(false));
  EXPECT_TRUE(std::is_sorted(toSource.begin(), toSource.end()));
  EXPECT_GT(toSource.front(), 0);
  EXPECT_LT(toSource.front(), 1e-4);
  EXPECT_GT(toSource.back(), 1 - 1e-4);
  for (std::size_t i = 0; i < kFade; ++i) EXPECT_NEAR(toSource[i], toEncoded[i], 1e-5) << i;
  EXPECT_NEAR(delayOf(toSource), delayOf(toEncoded), 1e-3);
  // Single-precision rounding: one step at the signals' peaks is 6e-8.
  EXPECT_LT(unexplained(listened(), switchesTo(true), toSource), 3e-7);
  EXPECT_LT(unexplained(listened(), switchesTo(false), toSource), 3e-7);
}

TEST_F(Switching, StepsAndDipsTheSameBothWays) {
  const auto share = shareOfTheNew(listened(), switchesTo(true));
  std::vector<double> steps;
  std::vector<double> dips;
  double deepest = 0;
  for (const auto& click : listened().clicks) {
    if (!click.switches()) continue;
    auto one = lookAt(listened(), listened().output, click.frame, click.toSource, share);
    auto other = lookAt(listened(), listened().mirrored, click.frame, !click.toSource, share);
    EXPECT_LE(one.step, 1) << click.frame;
    EXPECT_LE(other.step, 1) << click.frame;
    deepest = std::min({deepest, one.dip, other.dip});
    if (!click.toSource) std::swap(one, other);
    steps.push_back(one.step - other.step);
    dips.push_back(one.dip - other.dip);
  }
  for (const auto& [name, differences] : {std::pair("step", &steps), {"dip", &dips}}) {
    const auto [mean, error] = meanOf(*differences);
    std::cout << name << " to the source less than to the encoded signal by " << -mean << " +- "
              << error << '\n';
    EXPECT_LT(std::abs(mean), 3 * error) << name;
  }
  std::cout << "deepest dip " << deepest << " dB\n";
}

TEST(SwitchingInMidFade, StaysBetweenTheTwoSignals) {
  const auto listened = listenToSwitches(200, 40, kFade - 40);
  for (std::size_t channel = 0; channel < 2; ++channel) {
    for (std::size_t i = 0; i < listened.output.frames(); ++i) {
      const auto [low, high] =
          std::minmax(listened.source.planes[channel][i], listened.encoded.planes[channel][i]);
      ASSERT_GE(listened.output.planes[channel][i], low - 1e-6F) << i;
      ASSERT_LE(listened.output.planes[channel][i], high + 1e-6F) << i;
    }
  }
}

}  // namespace
