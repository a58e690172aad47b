#include "host/playback/Player.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "converter/unit/ConverterUnit.h"

namespace host {
namespace {

/// 6 ms at 44.1 kHz.
constexpr std::uint32_t fadeFrames = 256;
constexpr float fadeStep = 1.0F / static_cast<float>(fadeFrames);
/// Longer than any device's block: a device that does not call within it is dead.
constexpr auto fadePatience = std::chrono::milliseconds(250);
constexpr auto lookAgain = std::chrono::milliseconds(1);

}  // namespace

Player::Player(converter::ConverterUnit& unit, std::uint32_t maximumFrames,
               std::unique_ptr<AudioSource> source)
    : unit_(unit),
      maximumFrames_(maximumFrames),
      reader_(std::move(source)),
      end_(reader_.frames()),
      interleaved_(std::size_t{maximumFrames} * reader_.format().channels),
      planes_(std::size_t{maximumFrames} * reader_.format().channels) {
  seek(0);
}

Player::~Player() = default;

void Player::limitLength(std::int64_t frames) {
  suspend();
  const auto end = std::min(end_.load(), std::max<std::int64_t>(frames, 1));
  if (end < end_.exchange(end)) cutShort_ = true;
  resume();
}

void Player::play() {
  if (isFinished()) seek(0);
  if (silent_) start_ = played_.load(std::memory_order_relaxed);
  wanted_ = Wanted::Sound;
}

void Player::pause() {
  wanted_ = Wanted::Silence;
}

void Player::setOffline(bool offline) {
  offline_ = offline;
  setUnitFlag(audio_unit::offlineRenderProperty, offline);
}

void Player::setUnitFlag(const audio_unit::Property<UInt32>& flag, bool on) {
  writeProperty(&unit_, flag, on ? 1 : 0);
}

void Player::suspend() {
  const auto wanted = wanted_.exchange(Wanted::Silence);
  if (deviceRuns_) {
    const auto givenUp = std::chrono::steady_clock::now() + fadePatience;
    while (!silent_ && std::chrono::steady_clock::now() < givenUp) {
      std::this_thread::sleep_for(lookAgain);
    }
  }
  // Either the audio thread sees this before it starts a block, or we see that it is in one.
  suspended_ = true;
  while (rendering_) std::this_thread::yield();
  wanted_ = wanted;
}

void Player::resume() {
  suspended_ = false;
}

std::int64_t Player::audiblePosition(std::uint32_t deviceLatency) const {
  const auto pending = std::max<std::int64_t>(
      std::int64_t{deviceLatency} - silence_.load(std::memory_order_relaxed), 0);
  return placeOf(std::max(played_.load(std::memory_order_relaxed) - pending, start_));
}

std::int64_t Player::placeOf(std::int64_t frames) const {
  const auto frame = origin_ + frames;
  if (!loops_ || frame < loop_->end) return frame;
  return loop_->start + (frame - loop_->end) % loop_->length();
}

std::int64_t Player::framesToPlay() const {
  return loops_ ? feedable_ : std::min(feedable_, length() - origin_);
}

void Player::setLoop(std::optional<LoopRange> loop) {
  if (loop) {
    loop->start = std::max<std::int64_t>(loop->start, 0);
    loop->end = std::min(loop->end, length());
    if (loop->length() < 1) loop.reset();
  }
  if (loop == loop_) return;
  suspend();
  auto frame = position();
  if (loop && !loop->contains(frame)) frame = loop->start;
  const bool wasFinished = isFinished();
  reader_.setLoop(loop);
  loop_ = loop;
  seek(frame);
  if (wasFinished && !loop) finished_ = true;
}

void Player::seek(std::int64_t frame) {
  if (isFinished()) wanted_ = Wanted::Silence;
  suspend();
  frame = std::clamp<std::int64_t>(frame, 0, length());
  loops_ = loop_ && frame < loop_->end;
  const auto earliest = loop_ && !loops_ ? loop_->end : 0;
  const auto leadIn = std::min<std::int64_t>(unit_.latency(), frame - earliest);
  reader_.seek(frame - leadIn);
  unit_.reset();
  origin_ = frame;
  fed_ = -leadIn;
  feedable_ = unlimited;
  start_ = 0;
  played_ = 0;
  finished_ = false;
  // Only the very beginning is played without a fade-in; any other position would click.
  gain_ = frame == 0 ? 1.0F : 0.0F;
  runUpTo(leadIn);
  // At first the device may ask for several blocks at once.
  reader_.waitFor(format().sampleRate / 8);
  resume();
}

void Player::runUpTo(std::int64_t leadIn) {
  setUnitFlag(audio_unit::offlineRenderProperty, true);
  setUnitFlag(converter::kConverterProperty_Metering, false);
  const auto channels = format().channels;
  Planes output{};
  for (std::uint32_t channel = 0; channel < channels; ++channel) {
    output[channel] = planes_.data() + std::size_t{channel} * maximumFrames_;
  }
  for (auto left = unit_.latency() + leadIn; left > 0;) {
    const auto frames = static_cast<std::uint32_t>(std::min<std::int64_t>(left, maximumFrames_));
    reader_.waitFor(frames);
    const auto got = reader_.read(interleaved_.data(), frames);
    feedUnit(interleaved_.data(), got, output.data(), 0, frames);
    left -= frames;
  }
  setUnitFlag(converter::kConverterProperty_Metering, true);
  setUnitFlag(audio_unit::offlineRenderProperty, offline_);
}

void Player::feedUnit(const float* interleaved, std::size_t got, float* const* output,
                      std::uint32_t offset, std::uint32_t frames) noexcept {
  const auto channels = format().channels;
  Planes planes{};
  for (std::uint32_t channel = 0; channel < channels; ++channel) {
    float* const plane = output[channel] + offset;
    for (std::size_t i = 0; i < got; ++i) plane[i] = interleaved[i * channels + channel];
    std::fill(plane + got, plane + frames, 0.0F);
    planes[channel] = plane;
  }
  unit_.render(planes.data(), planes.data(), frames);
  fed_ += static_cast<std::int64_t>(got);
  if (got == frames) return;
  // A source's true end is known only once it has been reached.
  feedable_ = std::min(feedable_, fed_);
  const auto end = placeOf(feedable_);
  if (end < end_.load(std::memory_order_relaxed)) end_.store(end, std::memory_order_relaxed);
}

std::uint32_t Player::renderSound(float* const* planes, std::uint32_t offset,
                                  std::uint32_t frames) noexcept {
  std::uint32_t done = 0;
  while (done < frames && !finished_) {
    const auto played = played_.load(std::memory_order_relaxed);
    const auto left = std::max<std::int64_t>(framesToPlay() - played, 0);
    const auto count = static_cast<std::uint32_t>(
        std::min<std::int64_t>(std::min(frames - done, maximumFrames_), left));
    if (count > 0) {
      if (offline_) reader_.waitFor(count);
      const bool ended = reader_.hasEnded();
      if (!ended && reader_.readable() < count) break;
      const auto got = reader_.read(interleaved_.data(), count);
      feedUnit(interleaved_.data(), got, planes, offset + done, count);
    }
    // A source that ended early has moved the end, perhaps into this block.
    const auto heard = std::clamp<std::int64_t>(framesToPlay() - played, 0, count);
    played_.store(played + heard, std::memory_order_relaxed);
    done += static_cast<std::uint32_t>(heard);
    if (played + heard >= framesToPlay()) finished_.store(true, std::memory_order_release);
  }
  return done;
}

std::uint32_t Player::renderFadeOut(float* const* planes, std::uint32_t frames) noexcept {
  const auto done = renderSound(planes, 0, std::min(frames, fadeFrames));
  fade(planes, done, -fadeStep);
  // If the source stalls in mid-fade, that is silence, too.
  if (gain_ <= 0.0F || done == 0) {
    gain_ = 0.0F;
    silent_ = true;
  }
  return done;
}

void Player::fade(float* const* planes, std::uint32_t frames, float step) noexcept {
  const auto initial = gain_;
  for (std::uint32_t channel = 0; channel < format().channels; ++channel) {
    gain_ = initial;
    for (std::uint32_t i = 0; i < frames; ++i) {
      gain_ = std::clamp(gain_ + step, 0.0F, 1.0F);
      planes[channel][i] *= gain_;
    }
  }
}

void Player::renderBlock(float* const* planes, std::uint32_t frames) noexcept {
  rendering_ = true;
  std::uint32_t done = 0;
  if (!suspended_ && !finished_) {
    if (wanted_ == Wanted::Sound) {
      silent_ = false;
      done = renderSound(planes, 0, frames);
      if (gain_ < 1.0F) fade(planes, done, fadeStep);
      if (done < frames && !finished_) missed_ += frames - done;
    } else if (!silent_) {
      done = renderFadeOut(planes, frames);
    }
    if (finished_) silent_ = true;
    if (done > 0 && tap_ != nullptr) tap_->hear(planes, done);
  }
  for (std::uint32_t channel = 0; channel < format().channels; ++channel) {
    std::fill(planes[channel] + done, planes[channel] + frames, 0.0F);
  }
  const auto silence = done > 0 ? 0 : silence_.load(std::memory_order_relaxed);
  silence_.store(silence + frames - done, std::memory_order_relaxed);
  rendering_ = false;
}

}  // namespace host
