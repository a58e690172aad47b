#pragma once

#include <array>
#include <vector>

#include "converter/meters/SignalMeters.h"
#include "converter/stream/DelayLine.h"
#include "converter/stream/EncodedReader.h"
#include "converter/stream/GapMute.h"
#include "converter/stream/Lead.h"
#include "converter/stream/MonitorSwitch.h"
#include "converter/stream/RenderControls.h"
#include "converter/stream/SourceFeeder.h"
#include "converter/stream/Worker.h"

namespace converter {

/// Renders a unit's audio: feeds the worker, delays the source to align it with the encoded signal,
/// meters both, and outputs one of them.
class Renderer {
 public:
  /// Throws `std::runtime_error` when a codec cannot be opened.
  Renderer(const UnitFormat& unit, RenderControls& controls, const OpenEncoder& open,
           realtime::ReadClock readClock);

  /// See the operations of the same names in `ConverterUnit`.
  void render(const float* const* input, float* const* output, UInt32 frames) noexcept;
  void reset();
  void finish() { meters_.finish(); }
  void waitForCodec();
  void setBitStreamSink(BitStreamSink* sink);

  UInt32 latency() const { return latency_; }
  /// Any thread.
  const CodecStatus& codec() const { return worker_.codec(); }
  void setUrgent(bool urgent) { worker_.setUrgent(urgent); }
  velk::PeakStatistics peakStatistics() const { return meters_.read(); }
  void resetPeakStatistics() { meters_.requestReset(); }

 private:
  using Planes = std::array<std::vector<float>, kMaximumChannels>;

  Patience patienceOf(UInt32 frames) noexcept;
  void renderSlice(const float* const* input, float* const* output, UInt32 frames,
                   Patience patience);
  void countMissed(Stretches ofEncoded);

  UnitFormat unit_;
  RenderControls& controls_;
  UInt32 latency_;
  Worker worker_;
  SourceFeeder feeder_;
  EncodedReader reader_;
  DelayLine delay_;
  SignalMeters meters_;
  MonitorSwitch monitor_;
  GapMute mute_;
  Lead lead_;
  Planes source_;
  Planes encoded_;
};

}  // namespace converter
