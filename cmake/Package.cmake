# What others build against: the two shared libraries that a host shares with the view's bundle, the bundle,
# the public headers, and what CMake and pkg-config have to know of them.
#   runtime       libraries and bundle, and the programs (InstallPrograms.cmake)
#   development   headers, package files
include(CMakePackageConfigHelpers)

# Any 0.x may break what was built against the one before.
set_target_properties(velk_audio_unit velk_ui PROPERTIES
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

set_target_properties(velk_audio_unit PROPERTIES EXPORT_NAME audio_unit)
set_target_properties(velk_ui PROPERTIES EXPORT_NAME ui)
set_target_properties(velk_contract PROPERTIES EXPORT_NAME contract)
foreach(target velk_audio_unit velk_ui velk_contract)
  target_compile_features(${target} INTERFACE cxx_std_20)
endforeach()
install(TARGETS velk_audio_unit velk_ui velk_contract EXPORT ${VELK_PACKAGE}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
  INCLUDES DESTINATION ${VELK_INSTALL_HEADERDIR})

# velk_install_headers(<folder/header...>)
function(velk_install_headers)
  foreach(header IN LISTS ARGN)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES ${PROJECT_SOURCE_DIR}/src/${header} DESTINATION ${VELK_INSTALL_HEADERDIR}/${folder}
      COMPONENT development)
  endforeach()
endfunction()

get_target_property(audio_unit_headers velk_audio_unit VELK_PUBLIC_HEADERS)
get_target_property(contract_headers velk_contract VELK_PUBLIC_HEADERS)
velk_install_headers(${audio_unit_headers} ${contract_headers})
# Of ui what a host meets: the rest is between the view and its skins.
velk_install_headers(
  ui/AssertionHandler.h
  ui/AUCocoaUIBase.h
  ui/CustomView.h
  ui/Export.h
  ui/Geometry.h
  ui/Log.h
  ui/NotificationCenter.h
  ui/Object.h
  view/main/Notifications.h)

set(VELK_BUNDLE_BELOW_PREFIX "")
if(TARGET Velk_NordaAACConverter)
  set(VELK_BUNDLE_BELOW_PREFIX ${VELK_INSTALL_BUNDLEDIR}/${VELK_BUNDLE_NAME})
  velk_install_rpath(Velk_NordaAACConverter ${VELK_BUNDLE_BELOW_PREFIX})
  install(TARGETS Velk_NordaAACConverter
    LIBRARY DESTINATION ${VELK_BUNDLE_BELOW_PREFIX} COMPONENT runtime)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/bundle/${VELK_BUNDLE_NAME}/Resources
    DESTINATION ${VELK_BUNDLE_BELOW_PREFIX} COMPONENT runtime)
endif()

set(cmake_folder ${CMAKE_INSTALL_LIBDIR}/cmake/${VELK_PACKAGE})
set(package_folder ${PROJECT_BINARY_DIR}/package)
install(EXPORT ${VELK_PACKAGE} NAMESPACE Velk:: FILE ${VELK_PACKAGE}-targets.cmake
  DESTINATION ${cmake_folder} COMPONENT development)
configure_package_config_file(cmake/package/config.cmake.in
  ${package_folder}/${VELK_PACKAGE}-config.cmake
  INSTALL_DESTINATION ${cmake_folder}
  PATH_VARS VELK_BUNDLE_BELOW_PREFIX)
write_basic_package_version_file(${package_folder}/${VELK_PACKAGE}-config-version.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${package_folder}/${VELK_PACKAGE}-config.cmake
  ${package_folder}/${VELK_PACKAGE}-config-version.cmake
  DESTINATION ${cmake_folder} COMPONENT development)

file(RELATIVE_PATH prefix_from_pc /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" prefix_from_pc ${prefix_from_pc})
set(bundle_variable "")
if(VELK_BUNDLE_BELOW_PREFIX)
  set(bundle_variable "bundle=\${prefix}/${VELK_BUNDLE_BELOW_PREFIX}")
endif()
configure_file(cmake/package/pkgconfig.pc.in ${package_folder}/${VELK_PACKAGE}.pc @ONLY)
install(FILES ${package_folder}/${VELK_PACKAGE}.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
