#include "host/playback/SilentClock.h"

#include <array>
#include <chrono>
#include <vector>

namespace host {
namespace {

constexpr std::uint32_t kBlockFrames = 512;
/// After a delay longer than this the clock restarts instead of catching up.
constexpr auto kLongestDelay = std::chrono::milliseconds(200);

}  // namespace

SilentClock::SilentClock(AudioFormat format, BlockRenderer& renderer)
    : format_(format), renderer_(renderer), thread_([this] { run(); }) {}

SilentClock::~SilentClock() {
  stop_ = true;
  thread_.join();
}

void SilentClock::run() {
  using Clock = std::chrono::steady_clock;
  std::vector<float> samples(std::size_t{kBlockFrames} * 2);
  const std::array<float*, 2> planes = {samples.data(), samples.data() + kBlockFrames};
  auto start = Clock::now();
  std::int64_t rendered = 0;
  while (!stop_) {
    renderer_.renderBlock(planes.data(), kBlockFrames);
    rendered += kBlockFrames;
    const auto due = start + std::chrono::nanoseconds(rendered * 1'000'000'000 /
                                                      std::int64_t{format_.sampleRate});
    const auto now = Clock::now();
    if (now > due + kLongestDelay) {
      start = now;
      rendered = 0;
    } else {
      std::this_thread::sleep_until(due);
    }
  }
}

}  // namespace host
