#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <stdexcept>
#include <vector>

#include "Signals.h"
#include "contract/ConverterInterface.h"
#include "converter/codec/Encoder.h"
#include "converter/unit/AacConverter.h"

namespace {

using converter::Encoder;
using converter::Setting;
using converter::UnitFormat;

constexpr UnitFormat kUnit{.sampleRate = 44100, .channels = 2, .maximumFrames = 512};

/// Fails to encode some frames.
class FailingEncoder final : public Encoder {
 public:
  FailingEncoder(std::unique_ptr<Encoder> whole, int first, int count)
      : whole_(std::move(whole)), first_(first), count_(count) {}

  std::span<const std::uint8_t> encode(const float* const* planes) override {
    const auto unit = whole_->encode(planes);
    const int number = number_++;
    if (number < first_ || number >= first_ + count_) return unit;
    return {};
  }
  std::span<const std::uint8_t> configuration() const override { return whole_->configuration(); }
  converter::CodecTiming timing() const override { return whole_->timing(); }

 private:
  std::unique_ptr<Encoder> whole_;
  int first_;
  int count_;
  int number_ = 0;
};

/// A unit for which some or all encoders fail to open.
class CodecFailure : public testing::Test {
 protected:
  CodecFailure()
      : unit_(kUnit, [this](const Setting& setting, const UnitFormat& format) {
          if (isRefused(setting)) throw std::runtime_error("no encoder today");
          return openEncoder(setting, format);
        }) {
    writeProperty(&unit_, audio_unit::offlineRenderProperty, 1);
  }

  UInt64 failures() { return *readProperty(&unit_, converter::kConverterProperty_CodecFailures); }
  UInt64 missed() { return *readProperty(&unit_, converter::kConverterProperty_MissedFrames); }
  UInt32 effectiveRate() {
    return readProperty(&unit_, converter::kConverterProperty_EffectiveSetting)->bitRate;
  }
  void setRate(float index) {
    unit_.setParameter(velk::kConverterParam_Strategy, kAudioUnitScope_Global, 0, 0, 0);
    unit_.setParameter(velk::kConverterParam_RateQuality, kAudioUnitScope_Global, 0, index, 0);
  }

  Signal render(const Signal& input) {
    Signal output = silence(2, input[0].size());
    for (std::size_t at = 0; at + 500 <= input[0].size(); at += 500) {
      const std::array<const float*, 2> in{input[0].data() + at, input[1].data() + at};
      const std::array<float*, 2> out{output[0].data() + at, output[1].data() + at};
      unit_.render(in.data(), out.data(), 500);
    }
    return output;
  }

  static constexpr std::uint32_t kNone = 2;
  static constexpr std::uint32_t kAll = 1;

  bool isRefused(const Setting& setting) const {
    return refusedRate_ == kAll || refusedRate_ == setting.bitRate;
  }

  /// The bit rate whose encoder fails to open; or none or all of them.
  std::atomic<std::uint32_t> refusedRate_{kNone};
  converter::AacConverter unit_;
  const Signal input_ = music(2, 50000, 44100);
};

TEST_F(CodecFailure, IsNoneAsLongAsAllIsWell) {
  render(input_);
  EXPECT_EQ(failures(), 0U);
}

TEST_F(CodecFailure, InMidPlayLeavesTheOldCodecGoingAndShowsItsSetting) {
  setRate(10);
  render(input_);
  refusedRate_ = 64000;
  setRate(7);
  EXPECT_EQ(effectiveRate(), 64000U) << "nothing has been tried yet";
  const Signal output = render(input_);
  EXPECT_EQ(failures(), 1U);
  EXPECT_EQ(effectiveRate(), 128000U);
  EXPECT_EQ(missed(), 0U);
  EXPECT_GT(rms(output[0], 40000, 50000), 0.01);
  float written = 0;
  unit_.getParameter(velk::kConverterParam_RateQuality, kAudioUnitScope_Global, 0, written);
  EXPECT_EQ(written, 7);
}

TEST_F(CodecFailure, IsForgottenWithTheNextSettingThatWorks) {
  setRate(10);
  render(input_);
  refusedRate_ = 64000;
  setRate(7);
  render(input_);
  setRate(12);
  render(input_);
  EXPECT_EQ(effectiveRate(), 192000U);
  refusedRate_ = kNone;
  setRate(7);
  render(input_);
  EXPECT_EQ(effectiveRate(), 64000U);
  EXPECT_EQ(failures(), 1U);
}

TEST_F(CodecFailure, AfterAResetIsSilenceThatIsCountedUntilACodecOpens) {
  render(input_);
  unit_.reset();
  refusedRate_ = kAll;
  const Signal silent = render(input_);
  EXPECT_EQ(rms(silent[0], 0, 50000), 0);
  EXPECT_GT(failures(), 1U) << "every block tries again";
  const UInt64 missedAtFirst = missed();
  EXPECT_EQ(missedAtFirst, 50000 - unit_.latency());
  refusedRate_ = kNone;
  const Signal output = render(input_);
  // What the worker processed before stays silent, and the rest is in its place. The worker may
  // have been some blocks behind.
  const std::size_t latency = unit_.latency();
  const auto codecBegin = static_cast<std::size_t>(missed() - missedAtFirst);
  EXPECT_GT(codecBegin, 0U);
  EXPECT_LE(codecBegin, latency + 2048);
  EXPECT_EQ(rms(output[0], 0, codecBegin), 0);
  Signal delayed = silence(2, 50000);
  std::copy(input_[0].begin(), input_[0].end() - static_cast<std::ptrdiff_t>(latency),
            delayed[0].begin() + static_cast<std::ptrdiff_t>(latency));
  EXPECT_LT(residual(delayed[0], output[0], latency + 4096, 50000), -10);
}

TEST(CodecFailureOfAUnit, AtTheStartIsThrown) {
  EXPECT_THROW(
      converter::AacConverter(kUnit,
                              [](const Setting&, const UnitFormat&) -> std::unique_ptr<Encoder> {
                                throw std::runtime_error("no encoder today");
                              }),
      std::runtime_error);
}

/// Three access units of the encoder fail.
class CodecFailureOfAnAccessUnit : public testing::Test {
 protected:
  static constexpr std::size_t kUnitFrames = 1024;

  static std::unique_ptr<Encoder> openFailing(const Setting& setting, const UnitFormat& unit) {
    return std::make_unique<FailingEncoder>(openEncoder(setting, unit), 20, 3);
  }
  static Signal render(converter::AacConverter& unit, const Signal& input) {
    writeProperty(&unit, audio_unit::offlineRenderProperty, 1);
    Signal output = silence(2, input[0].size());
    for (std::size_t at = 0; at + 500 <= input[0].size(); at += 500) {
      const std::array<const float*, 2> in{input[0].data() + at, input[1].data() + at};
      const std::array<float*, 2> out{output[0].data() + at, output[1].data() + at};
      unit.render(in.data(), out.data(), 500);
    }
    return output;
  }
};

TEST_F(CodecFailureOfAnAccessUnit, IsCountedAndLeavesTheRestInItsPlace) {
  const Signal input = music(2, 80000, 44100);
  converter::AacConverter whole(kUnit);
  converter::AacConverter failing(kUnit, openFailing);
  const Signal expected = render(whole, input);
  const Signal output = render(failing, input);
  EXPECT_EQ(*readProperty(&failing, converter::kConverterProperty_CodecFailures), 3U);
  EXPECT_LT(residual(expected[0], output[0], 60000, 80000), -60);
  EXPECT_GT(residual(expected[0], output[0], 15000, 60000), -30) << "nothing was lost";
}

TEST_F(CodecFailureOfAnAccessUnit, IsSilentInBothSignalsWhileAListeningTestRuns) {
  const Signal input = smoothNoise(2, 80000, 44100, 2200);
  std::vector<std::vector<bool>> silences;
  for (const UInt32 source : {0U, 1U}) {
    converter::AacConverter unit(kUnit, openFailing);
    writeProperty(&unit, velk::kConverterProperty_MonitorSource, source);
    writeProperty(&unit, velk::kConverterProperty_ListeningTestActive, 1);
    const Signal output = render(unit, input);
    std::vector<bool> silent;
    for (std::size_t i = unit.latency() + 1000; i < output[0].size(); ++i) {
      silent.push_back(output[0][i] == 0 && output[1][i] == 0);
    }
    silences.push_back(silent);
  }
  EXPECT_EQ(silences[0], silences[1]);
  // With the unit that overlaps the last of them.
  EXPECT_GE(std::ranges::count(silences[1], true), static_cast<std::ptrdiff_t>(4 * kUnitFrames));
  EXPECT_LE(std::ranges::count(silences[1], true),
            static_cast<std::ptrdiff_t>(4 * kUnitFrames + 64));
}

TEST_F(CodecFailureOfAnAccessUnit, IsNotMetered) {
  Signal sine = silence(2, 80000);
  for (std::size_t i = 0; i < sine[0].size(); ++i) {
    sine[0][i] = sine[1][i] = static_cast<float>(0.94 * std::sin(0.142 * static_cast<double>(i)));
  }
  const auto peak = [&](converter::AacConverter& unit) {
    render(unit, sine);
    const auto read = *readProperty(&unit, velk::kConverterProperty_PeakStats);
    return read[velk::kPeakStatsSlot_EncodedLeft].mInterSamplePeak;
  };
  converter::AacConverter whole(kUnit);
  converter::AacConverter failing(kUnit, openFailing);
  EXPECT_NEAR(peak(failing), peak(whole), 0.1);
}

}  // namespace
