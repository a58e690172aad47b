#pragma once

#include <string>

namespace converter {

/// A library as it is found when the program runs, which may be another build of it than the one
/// that the program was linked with.
struct CodecLibrary {
  std::string name;
  std::string version;
  std::string licence;
};

CodecLibrary encoderLibrary();
CodecLibrary decoderLibrary();

/// What follows from the codecs' licences for a program that is linked with both.
enum class Redistribution {
  /// The licences do not go together: for one's own use only.
  None,
  /// Under the encoder's licence and the decoder's.
  UnderBothLicences,
  /// One library does both, and its licence says what the program's is.
  UnderTheirLicence,
};

Redistribution redistribution(const CodecLibrary& encoder, const CodecLibrary& decoder);

}  // namespace converter
