# Says what follows from the codecs' licences for a binary, as the programs' --version does when they run.
# libavcodec knows how it was configured; a build for another machine cannot ask it.
if(CMAKE_CROSSCOMPILING)
  return()
endif()
if(NOT VELK_LIBAVCODEC_ASKED STREQUAL LIBAV_libavcodec_VERSION)
  try_run(status compiled
    SOURCE_FROM_CONTENT licence.cpp "extern \"C\" {
#include <libavcodec/avcodec.h>
}
#include <cstdio>
int main() { std::puts(avcodec_license()); }
"
    LINK_LIBRARIES PkgConfig::LIBAV
    RUN_OUTPUT_VARIABLE licence)
  if(NOT compiled OR NOT status EQUAL 0)
    return()
  endif()
  string(STRIP ${licence} licence)
  set(VELK_LIBAVCODEC_LICENCE ${licence} CACHE INTERNAL "What libavcodec says its licence is")
  set(VELK_LIBAVCODEC_ASKED ${LIBAV_libavcodec_VERSION} CACHE INTERNAL "The libavcodec that said so")
endif()

if(VELK_LIBAVCODEC_LICENCE MATCHES "^LGPL" AND encoder_library)
  set(terms "a binary may be passed on under the licences of FDK AAC and libavcodec")
elseif(VELK_LIBAVCODEC_LICENCE MATCHES "^L?GPL" AND NOT encoder_library)
  set(terms "a binary may be passed on under it")
else()
  set(terms "a binary is for your own use only, not to be passed on")
endif()
message(STATUS "Converter: libavcodec's licence is ${VELK_LIBAVCODEC_LICENCE}: ${terms}")
set_property(GLOBAL PROPERTY VELK_CODEC_TERMS "${terms}")
