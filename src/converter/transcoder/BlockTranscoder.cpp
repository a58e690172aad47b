#include "converter/transcoder/BlockTranscoder.h"

#include <utility>

#include "converter/codec/CodecRate.h"
#include "converter/transcoder/ResampledTranscoder.h"
#include "converter/transcoder/Transcoder.h"

namespace converter {

std::unique_ptr<BlockTranscoder> makeTranscoder(const UnitFormat& unit, OpenEncoder open) {
  if (resamplingRatio(unit) == 1) return std::make_unique<Transcoder>(unit, std::move(open));
  return std::make_unique<ResampledTranscoder>(unit, std::move(open));
}

}  // namespace converter
