#include "converter/meters/PeakStatisticsExchange.h"

#include <bit>

#include "converter/meters/TruePeakMeter.h"

namespace converter {

using Words = std::array<std::uint64_t, sizeof(velk::PeakStatistics) / sizeof(std::uint64_t)>;

static_assert(std::atomic<std::uint64_t>::is_always_lock_free);

velk::PeakStatistics clearedPeakStatistics() noexcept {
  velk::PeakStatistics statistics;
  statistics.fill(clearedStatistics());
  return statistics;
}

PeakStatisticsExchange::PeakStatisticsExchange() noexcept {
  publish(clearedPeakStatistics());
}

bool PeakStatisticsExchange::takeResetRequest() noexcept {
  const std::uint64_t requested = resetsRequested_.load(std::memory_order_acquire);
  if (requested == resetsTaken_) return false;
  resetsTaken_ = requested;
  return true;
}

// Release stores of every word, rather than a fence, order the mark before the words: a reader that
// sees a new word also sees the mark or what follows it. The thread sanitizer understands this, and
// on x86-64 it costs nothing.
void PeakStatisticsExchange::publish(const velk::PeakStatistics& statistics) noexcept {
  const auto words = std::bit_cast<Words>(statistics);
  const std::uint64_t edition = newestEdition_.load(std::memory_order_relaxed) + 1;
  Slot& slot = slots_[edition % slots_.size()];
  slot.edition.store(kBeingWritten, std::memory_order_relaxed);
  slot.resetsTaken.store(resetsTaken_, std::memory_order_release);
  for (std::size_t i = 0; i < kWords; ++i) {
    slot.words[i].store(words[i], std::memory_order_release);
  }
  slot.edition.store(edition, std::memory_order_release);
  newestEdition_.store(edition, std::memory_order_release);
}

void PeakStatisticsExchange::requestReset() noexcept {
  resetsRequested_.fetch_add(1, std::memory_order_acq_rel);
}

bool PeakStatisticsExchange::readSlot(std::uint64_t edition, velk::PeakStatistics& statistics,
                                      std::uint64_t& resetsTaken) const noexcept {
  const Slot& slot = slots_[edition % slots_.size()];
  if (slot.edition.load(std::memory_order_acquire) != edition) return false;
  resetsTaken = slot.resetsTaken.load(std::memory_order_acquire);
  Words words{};
  for (std::size_t i = 0; i < kWords; ++i) {
    words[i] = slot.words[i].load(std::memory_order_acquire);
  }
  if (slot.edition.load(std::memory_order_relaxed) != edition) return false;
  statistics = std::bit_cast<velk::PeakStatistics>(words);
  return true;
}

velk::PeakStatistics PeakStatisticsExchange::read() const noexcept {
  const std::uint64_t requested = resetsRequested_.load(std::memory_order_acquire);
  velk::PeakStatistics statistics;
  std::uint64_t resetsTaken = 0;
  while (!readSlot(newestEdition_.load(std::memory_order_acquire), statistics, resetsTaken)) {
  }
  return resetsTaken < requested ? clearedPeakStatistics() : statistics;
}

}  // namespace converter
