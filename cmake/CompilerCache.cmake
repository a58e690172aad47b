# Compiles through ccache where it is installed. Relative paths let every clone share what one of them compiled.
find_program(VELK_CCACHE ccache)
mark_as_advanced(VELK_CCACHE)
if(VELK_CCACHE)
  foreach(language IN ITEMS C CXX OBJC OBJCXX)
    # A launcher that the user chose, on the command line or in the environment, stays.
    if(NOT CMAKE_${language}_COMPILER_LAUNCHER)
      set(CMAKE_${language}_COMPILER_LAUNCHER
        env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_SLOPPINESS=pch_defines,time_macros ${VELK_CCACHE})
    endif()
  endforeach()
endif()
