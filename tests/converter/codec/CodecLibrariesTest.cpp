#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "converter/codec/CodecLibraries.h"

namespace {

using converter::CodecLibrary;
using converter::Redistribution;

const CodecLibrary kFdk = {"FDK AAC encoder", "4.0.1", "FDK AAC licence"};

CodecLibrary libavcodec(const char* licence) {
  return {"libavcodec", "59.37.100", licence};
}

Redistribution ofOneLibrary(const char* licence) {
  return converter::redistribution(libavcodec(licence), libavcodec(licence));
}

TEST(CodecLibraries, AllowNoBinaryWithFdkAndTheGplToBePassedOn) {
  for (const char* const licence : {"GPL version 2 or later", "GPL version 3 or later"}) {
    EXPECT_EQ(converter::redistribution(kFdk, libavcodec(licence)), Redistribution::None);
  }
}

TEST(CodecLibraries, AllowABinaryWithFdkAndTheLgplUnderBothLicences) {
  for (const char* const licence : {"LGPL version 2.1 or later", "LGPL version 3 or later"}) {
    EXPECT_EQ(converter::redistribution(kFdk, libavcodec(licence)),
              Redistribution::UnderBothLicences);
  }
}

TEST(CodecLibraries, AllowABinaryOfLibavcodecAloneUnderItsLicence) {
  EXPECT_EQ(ofOneLibrary("GPL version 2 or later"), Redistribution::UnderTheirLicence);
  EXPECT_EQ(ofOneLibrary("LGPL version 2.1 or later"), Redistribution::UnderTheirLicence);
}

TEST(CodecLibraries, AllowNothingWhereLibavcodecDoesNot) {
  EXPECT_EQ(ofOneLibrary("nonfree and unredistributable"), Redistribution::None);
  EXPECT_EQ(converter::redistribution(kFdk, libavcodec("nonfree and unredistributable")),
            Redistribution::None);
}

TEST(CodecLibraries, SayTheirVersions) {
  for (const auto& library : {converter::encoderLibrary(), converter::decoderLibrary()}) {
    EXPECT_THAT(library.version, testing::MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+")) << library.name;
    EXPECT_FALSE(library.licence.empty());
  }
}

}  // namespace
