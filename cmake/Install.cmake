# Where things lie when they are installed, relative to a prefix that may be moved. Known before src/, because
# the programs look for the bundle from where they are themselves.
include(GNUInstallDirs)
set(VELK_PACKAGE velk-aac-view)
set(VELK_BUNDLE_NAME Velk_NordaAACConverter.bundle)
set(VELK_INSTALL_BUNDLEDIR ${CMAKE_INSTALL_LIBDIR}/${VELK_PACKAGE})
set(VELK_INSTALL_HEADERDIR ${CMAKE_INSTALL_INCLUDEDIR}/${VELK_PACKAGE})

# velk_install_rpath(<target> <its folder below the prefix>): it finds the shared libraries from where it lies.
function(velk_install_rpath target folder)
  file(RELATIVE_PATH libraries /prefix/${folder} /prefix/${CMAKE_INSTALL_LIBDIR})
  string(REGEX REPLACE "/$" "" libraries ${libraries})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
endfunction()
