#include "host/unit/CodecTerms.h"

#include "converter/codec/CodecLibraries.h"

namespace host {
namespace {

std::string described(const converter::CodecLibrary& library) {
  return library.name + " " + library.version + " (" + library.licence + ")";
}

std::string termsOf(const converter::CodecLibrary& encoder,
                    const converter::CodecLibrary& decoder) {
  switch (converter::redistribution(encoder, decoder)) {
    case converter::Redistribution::None:
      break;
    case converter::Redistribution::UnderBothLicences:
      return "A binary may be passed on under these two licences.";
    case converter::Redistribution::UnderTheirLicence:
      return "A binary may be passed on under the " + decoder.licence + ".";
  }
  return "For your own use only: these licences do not allow a binary to be passed on.";
}

}  // namespace

std::string codecTerms() {
  const auto encoder = converter::encoderLibrary();
  const auto decoder = converter::decoderLibrary();
  return "Encoder: " + described(encoder) + "\nDecoder: " + described(decoder) + "\n" +
         termsOf(encoder, decoder);
}

}  // namespace host
