#include "host/files/OpenedFile.h"

#include <utility>

#include "host/files/ResampledSource.h"
#include "host/files/SampleRates.h"
#include "host/files/SoundFile.h"

namespace host {

OpenedFile openForPlaying(const std::filesystem::path& path, const ChannelChoice& choice) {
  auto file = std::make_unique<SoundFile>(path, choice);
  const auto original = file->format();
  auto truncated = file->truncation();
  auto source = atSampleRate(std::move(file), unitSampleRateFor(original.sampleRate));
  return {path, std::move(source), original, std::move(truncated), choice};
}

}  // namespace host
