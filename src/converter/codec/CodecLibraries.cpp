#include "converter/codec/CodecLibraries.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/version.h>
}

namespace converter {

CodecLibrary decoderLibrary() {
  const unsigned version = avcodec_version();
  return {"libavcodec",
          std::to_string(AV_VERSION_MAJOR(version)) + "." +
              std::to_string(AV_VERSION_MINOR(version)) + "." +
              std::to_string(AV_VERSION_MICRO(version)),
          avcodec_license()};
}

Redistribution redistribution(const CodecLibrary& encoder, const CodecLibrary& decoder) {
  const bool isLesser = decoder.licence.starts_with("LGPL");
  if (encoder.name != decoder.name) {
    return isLesser ? Redistribution::UnderBothLicences : Redistribution::None;
  }
  // The library calls itself "nonfree and unredistributable" where it was configured so.
  const bool isFree = isLesser || decoder.licence.starts_with("GPL");
  return isFree ? Redistribution::UnderTheirLicence : Redistribution::None;
}

}  // namespace converter
