#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "Rig.h"
#include "converter/codec/BitStreamSink.h"
#include "converter/codec/Decoder.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

struct Unit {
  Bytes bytes;
  std::int64_t position;
};

struct Stream {
  Bytes configuration;
  double sampleRate;
  UInt32 channels;
  UInt32 frameLength;
  std::vector<Unit> units;
};

class Recorder : public converter::BitStreamSink {
 public:
  void startStream(const converter::BitStream& stream) noexcept override {
    streams.push_back({Bytes(stream.configuration.begin(), stream.configuration.end()),
                       stream.sampleRate,
                       stream.channels,
                       stream.frameLength,
                       {}});
    isOnCallersThread |= std::this_thread::get_id() == caller;
  }
  void writeAccessUnit(const converter::AccessUnit& unit) noexcept override {
    streams.back().units.push_back({Bytes(unit.bytes.begin(), unit.bytes.end()), unit.position});
  }

  std::vector<Stream> streams;
  std::thread::id caller = std::this_thread::get_id();
  bool isOnCallersThread = false;
};

/// Decodes the stream; the result is indexed by position in the source from 0 on.
Signal decode(const Stream& stream, std::size_t frames) {
  const converter::UnitFormat format{
      .sampleRate = stream.sampleRate, .channels = stream.channels, .maximumFrames = 512};
  const auto decoder = converter::openDecoder(stream.configuration, format, stream.frameLength);
  Signal signal = silence(stream.channels, frames);
  for (const Unit& unit : stream.units) {
    const float* const* planes = decoder->decode(unit.bytes);
    for (UInt32 i = 0; planes != nullptr && i < stream.frameLength; ++i) {
      const std::int64_t at = unit.position + i;
      if (at < 0 || at >= static_cast<std::int64_t>(frames)) continue;
      for (UInt32 channel = 0; channel < stream.channels; ++channel) {
        signal[channel][static_cast<std::size_t>(at)] = planes[channel][i];
      }
    }
  }
  return signal;
}

/// Detaches the sink, so that the worker no longer writes to it.
void take(Rig& rig) {
  rig.unit().setBitStreamSink(nullptr);
}

class BitStreamOf : public testing::TestWithParam<SInt32> {};

TEST_P(BitStreamOf, DecodesToTheEncodedSignalBitForBit) {
  Recorder recorder;
  Rig rig;
  rig.setPreset(GetParam());
  rig.unit().setBitStreamSink(&recorder);
  const Signal encoded = rig.renderAligned(music(2, 60000, 44100));
  take(rig);
  ASSERT_EQ(recorder.streams.size(), 1U);
  const Stream& stream = recorder.streams[0];
  EXPECT_EQ(stream.sampleRate, 44100);
  EXPECT_EQ(stream.channels, 2U);
  EXPECT_LT(stream.units.front().position, 0);
  EXPECT_EQ(decode(stream, 60000), encoded);
}

INSTANTIATE_TEST_SUITE_P(EveryPreset, BitStreamOf, testing::Values(0, 1, 2, 3));

TEST(BitStream, GivesTheUnitsInOrderWithoutAGap) {
  Recorder recorder;
  Rig rig;
  rig.unit().setBitStreamSink(&recorder);
  rig.render(music(2, 60000, 44100));
  take(rig);
  const Stream& stream = recorder.streams.at(0);
  ASSERT_GT(stream.units.size(), 40U);
  for (std::size_t i = 1; i < stream.units.size(); ++i) {
    EXPECT_EQ(stream.units[i].position - stream.units[i - 1].position, stream.frameLength);
  }
}

class BitStreamAt : public testing::TestWithParam<double> {};

TEST_P(BitStreamAt, IsCompleteOnceTheCodecWasWaitedFor) {
  Recorder recorder;
  Rig rig({.sampleRate = GetParam(), .channels = 2, .maximumFrames = 4096});
  rig.setOffline(false);
  rig.unit().setBitStreamSink(&recorder);
  rig.render(music(2, 20480, GetParam()));
  rig.unit().waitForCodec();
  const auto units = recorder.streams.at(0).units.size();
  EXPECT_GT(recorder.streams[0].units.back().position, 0);
  const auto rate = rig.property(converter::kConverterProperty_BitRate);
  // No work was left.
  rig.unit().waitForCodec();
  rig.unit().setBitStreamSink(nullptr);
  EXPECT_EQ(recorder.streams.at(0).units.size(), units);

  Rig patient({.sampleRate = GetParam(), .channels = 2, .maximumFrames = 4096});
  Recorder whole;
  patient.unit().setBitStreamSink(&whole);
  patient.render(music(2, 20480, GetParam()));
  patient.unit().waitForCodec();
  EXPECT_EQ(whole.streams.at(0).units.size(), units);
  EXPECT_EQ(patient.property(converter::kConverterProperty_BitRate).averageKbps, rate.averageKbps);
}

INSTANTIATE_TEST_SUITE_P(EitherWay, BitStreamAt, testing::Values(44100.0, 192000.0),
                         [](const auto& test) {
                           return test.param > 96000 ? "Resampled" : "AtTheUnitsRate";
                         });

TEST(BitStream, ComesOnTheWorkersThread) {
  Recorder recorder;
  Rig rig;
  rig.unit().setBitStreamSink(&recorder);
  rig.render(music(2, 20000, 44100));
  take(rig);
  EXPECT_FALSE(recorder.streams.empty());
  EXPECT_FALSE(recorder.isOnCallersThread);
}

TEST(BitStream, StartsAgainWithEveryChangeOfEncoder) {
  const Signal input = music(2, 60000, 44100);
  Recorder recorder;
  Rig rig;
  rig.unit().setBitStreamSink(&recorder);
  rig.renderInBlocks(input, [&](std::size_t at) -> std::size_t {
    if (at == 30000) rig.setSetting(0, 0, 9);
    return 500;
  });
  take(rig);
  ASSERT_EQ(recorder.streams.size(), 2U);
  const Stream& changed = recorder.streams[1];
  // First the priming units, then everything from the change on.
  EXPECT_LT(changed.units.front().position, 30000);
  EXPECT_GT(changed.units.front().position, 30000 - 6 * 1024);
  for (std::size_t i = 1; i < changed.units.size(); ++i) {
    EXPECT_EQ(changed.units[i].position - changed.units[i - 1].position, changed.frameLength);
  }
}

TEST(BitStream, StartsAgainWithEveryReset) {
  const Signal input = music(2, 30000, 44100);
  Recorder recorder;
  Rig rig;
  rig.unit().setBitStreamSink(&recorder);
  rig.render(input);
  rig.unit().reset();
  rig.render(input);
  take(rig);
  ASSERT_EQ(recorder.streams.size(), 2U);
  EXPECT_LT(recorder.streams[1].units.front().position, 0);
  EXPECT_EQ(recorder.streams[1].units.front().bytes, recorder.streams[0].units.front().bytes);
}

TEST(BitStream, IsNotSentToADetachedSink) {
  Recorder recorder;
  Rig rig;
  rig.unit().setBitStreamSink(&recorder);
  rig.render(music(2, 20000, 44100));
  rig.unit().setBitStreamSink(nullptr);
  const std::size_t units = recorder.streams.at(0).units.size();
  rig.render(music(2, 40000, 44100));
  EXPECT_EQ(recorder.streams.size(), 1U);
  EXPECT_EQ(recorder.streams[0].units.size(), units);
}

TEST(BitStream, DoesNotChangeTheSound) {
  const Signal input = music(2, 40000, 44100);
  Rig plain;
  Recorder recorder;
  Rig rig;
  rig.unit().setBitStreamSink(&recorder);
  EXPECT_EQ(rig.render(input), plain.render(input));
}

}  // namespace
