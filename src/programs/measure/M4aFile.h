#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "converter/codec/BitStreamSink.h"
#include "host/files/AtomicFile.h"

namespace host::measure {

/// Writes access units as they are to an MPEG-4 audio file. Its edit list leaves out the encoder's
/// run-up and what follows the last frame, so that it plays from the source's first frame to its
/// last.
class M4aFile final : public converter::BitStreamSink {
 public:
  /// Takes over the file. `frames` is the source's length at `sampleRate` Hz.
  M4aFile(std::unique_ptr<AtomicFile> file, std::int64_t frames, std::uint32_t sampleRate);
  /// Without `finish` nothing is left behind.
  ~M4aFile() override;

  void startStream(const converter::BitStream& stream) noexcept override;
  void writeAccessUnit(const converter::AccessUnit& unit) noexcept override;

  /// Ends the file and gives it its name. Throws `Failure` when anything went wrong on the way.
  /// After the last access unit.
  void finish();

 private:
  struct Muxer;

  void fail(const std::string& why) noexcept;

  std::unique_ptr<AtomicFile> target_;
  const std::int64_t sourceFrames_;
  const std::uint32_t sourceRate_;
  std::vector<std::uint8_t> configuration_;
  converter::BitStream stream_{};
  /// The source's length at the stream's rate.
  std::int64_t frames_ = 0;
  /// Made for the first access unit, whose position tells how long the run-up is.
  std::unique_ptr<Muxer> muxer_;
  /// Where the next access unit has to start.
  std::int64_t next_ = 0;
  /// The first thing that went wrong.
  std::string error_;
};

}  // namespace host::measure
