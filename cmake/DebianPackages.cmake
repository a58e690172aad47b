# cpack -G DEB, in the build folder, makes two packages: what runs, and what is built against.
set(CPACK_PACKAGE_NAME ${VELK_PACKAGE})
set(CPACK_PACKAGE_CONTACT "${VELK_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "hear, measure and judge what AAC encoding does to a mix")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_OUTPUT_FILE_PREFIX ${PROJECT_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL runtime development)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${VELK_PACKAGE})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS ON)
# The view's drawing of icons is a plug-in, which nothing is linked with.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "qt6-svg-plugins | libqt6svg6, qt6-translations-l10n")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
  "A converter encodes audio to AAC and decodes it again at once. aac-audition plays mixes through it, with a "
  "view that switches between both signals, shows peaks and overs and runs blind listening tests. aac-measure "
  "reads whole albums.")
get_property(terms GLOBAL PROPERTY VELK_CODEC_TERMS)
if(terms)
  list(APPEND CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "\n\nWhat the codecs' licences allow: ${terms}.")
endif()
list(JOIN CPACK_COMPONENT_RUNTIME_DESCRIPTION "" CPACK_COMPONENT_RUNTIME_DESCRIPTION)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${VELK_PACKAGE}-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${VELK_PACKAGE} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
  "Headers, a CMake package and a pkg-config file for hosts of the view and authors of units.")

include(CPack)
