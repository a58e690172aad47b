#include <atomic>
#include <chrono>
#include <thread>

#include "AudioThreadTraps.h"
#include "Clock.h"
#include "Figure.h"
#include "RandomOperator.h"
#include "Rig.h"
#include "realtime/ThreadPriority.h"

namespace figures {
namespace {

constexpr double kRate = 48000;
constexpr std::size_t kBlock = 64;
constexpr double kDeadline = kBlock / kRate;
constexpr std::size_t kSeconds = 60;
/// The percentile of call times that is reported.
constexpr double kShare = 0.999;

/// Renders a minute in real time, on a thread with an audio thread's priority where the system
/// allows it, and passes each call's duration in seconds to `took`.
template <typename Took>
void renderInRealTime(Rig& rig, const Signal& input, Took took) {
  Signal output = silence(2, kBlock);
  float* const out[] = {output[0].data(), output[1].data()};
  std::thread audio([&] {
    realtime::raiseThreadPriority();
    auto due = std::chrono::steady_clock::now();
    for (std::size_t block = 0; block < kSeconds * std::size_t{48000} / kBlock; ++block) {
      const std::size_t at = block * kBlock % (input[0].size() - kBlock);
      const float* const in[] = {input[0].data() + at, input[1].data() + at};
      const double start = wallSeconds();
      rig.unit().render(in, out, kBlock);
      took(wallSeconds() - start);
      due += std::chrono::nanoseconds(static_cast<std::int64_t>(1e9 * kDeadline));
      std::this_thread::sleep_until(due);
    }
  });
  audio.join();
}

std::vector<Row> measureCalls() {
  Rig rig({.sampleRate = kRate, .channels = 2, .maximumFrames = kBlock});
  rig.setOffline(false);
  const Signal input = music(2, std::size_t{10} * 48000, kRate);
  std::vector<double> calls;
  calls.reserve(kSeconds * 48000 / kBlock);
  renderInRealTime(rig, input, [&calls](double seconds) { calls.push_back(seconds); });
  const auto place =
      calls.begin() + static_cast<std::ptrdiff_t>(kShare * static_cast<double>(calls.size()));
  std::nth_element(calls.begin(), place, calls.end());
  return {atMost("call_time_p99_9", 100 * *place / kDeadline, 5, "% of the deadline"),
          atMost("missed_frames", static_cast<double>(rig.missedFrames()), 0)};
}

constexpr std::size_t kTrappedFrames = 960000;
/// Times real time; slow enough for the worker to keep up.
constexpr double kTrappedSpeed = 5;

/// Counts what `render` calls while another thread changes settings, presets, monitor and flags.
std::vector<Row> measureTraps() {
  Rig rig({.sampleRate = kRate, .channels = 2, .maximumFrames = kBlock});
  rig.setOffline(false);
  const Signal input = music(2, std::size_t{4} * 48000, kRate);
  Signal output = silence(2, kBlock);
  RandomOperator other(rig.unit(), 5);
  const auto operating = other.operateAllTheTime(std::chrono::microseconds(50));
  AudioThreadTraps::Counts counts;
  int systemCalls = 0;
  bool isTrapped = false;
  std::thread audio([&] {
    isTrapped = trapSystemCalls();
    float* const out[] = {output[0].data(), output[1].data()};
    const int before = trappedSystemCalls();
    const double startTime = wallSeconds();
    AudioThreadTraps traps;
    for (std::size_t done = 0; done < kTrappedFrames; done += kBlock) {
      const std::size_t at = done % (input[0].size() - kBlock);
      const float* const in[] = {input[0].data() + at, input[1].data() + at};
      rig.unit().render(in, out, kBlock);
      // Reading the clock is no system call; sleeping is.
      const double due = startTime + static_cast<double>(done) / kRate / kTrappedSpeed;
      while (wallSeconds() < due) {
      }
    }
    counts = traps.counts();
    systemCalls = trappedSystemCalls() - before;
  });
  audio.join();
  std::vector<Row> rows = {
      atMost("audio_thread_allocations", counts.allocations, 0),
      atMost("audio_thread_locks", counts.locks, 0),
      atMost("audio_thread_waits", counts.waits, 0),
      atMost("audio_thread_system_calls", systemCalls, 0),
      atMost("audio_thread_wake_ups", counts.wakeUps / (kTrappedFrames / 2048.0), 1,
             "per access unit"),
  };
  if (!isTrapped) rows[3].holds = false;
  return rows;
}

}  // namespace

Family callTime() {
  return {{"call_time_p99_9", "missed_frames"}, measureCalls};
}

Family audioThreadCalls() {
  return {{"audio_thread_allocations", "audio_thread_locks", "audio_thread_waits",
           "audio_thread_system_calls", "audio_thread_wake_ups"},
          measureTraps};
}

}  // namespace figures
