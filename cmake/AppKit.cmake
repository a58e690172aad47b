# AppKit: the system's own on macOS, GNUstep's elsewhere. Reference counts are kept by hand.

# GNUstep is built for GNU's runtime, which no other compiler's code can be trusted with. GNU's compiler may be
# there without its part for Objective-C++, which it then names without a path.
function(velk_find_objective_cxx)
  foreach(name IN ITEMS ${CMAKE_CXX_COMPILER} g++ g++-14 g++-13 g++-12)
    find_program(compiler ${name} NO_CACHE)
    if(compiler)
      execute_process(COMMAND ${compiler} -print-prog-name=cc1objplus
        OUTPUT_VARIABLE part OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
      if(IS_ABSOLUTE "${part}")
        file(REAL_PATH ${compiler} compiler)
        string(REGEX REPLACE "g\\+\\+(-[0-9]+)?$" "gcc\\1" c_compiler ${compiler})
        set(CMAKE_OBJC_COMPILER ${c_compiler} CACHE FILEPATH "Compiler of Objective-C")
        set(CMAKE_OBJCXX_COMPILER ${compiler} CACHE FILEPATH "Compiler of Objective-C++")
        return()
      endif()
    endif()
    unset(compiler)
  endforeach()
  message(FATAL_ERROR "VELK_WITH_APPKIT needs GNU's compiler of Objective-C++: scripts/install-packages test")
endfunction()

if(NOT APPLE AND NOT CMAKE_OBJCXX_COMPILER)
  velk_find_objective_cxx()
endif()
enable_language(OBJC OBJCXX)
set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
set(CMAKE_OBJCXX_VISIBILITY_PRESET hidden)

add_library(velk_cocoa INTERFACE)
if(APPLE)
  target_compile_options(velk_cocoa INTERFACE
    $<$<COMPILE_LANGUAGE:OBJC,OBJCXX>:-fno-objc-arc>)
  target_link_libraries(velk_cocoa INTERFACE "-framework AppKit")
else()
  find_program(VELK_GNUSTEP_CONFIG gnustep-config)
  if(NOT VELK_GNUSTEP_CONFIG)
    message(FATAL_ERROR "VELK_WITH_APPKIT needs GNUstep: scripts/install-packages test")
  endif()
  execute_process(COMMAND ${VELK_GNUSTEP_CONFIG} --objc-flags
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${VELK_GNUSTEP_CONFIG} --gui-libs
    OUTPUT_VARIABLE libraries OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${VELK_GNUSTEP_CONFIG} --variable=GNUSTEP_SYSTEM_HEADERS
    OUTPUT_VARIABLE headers OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  separate_arguments(flags)
  separate_arguments(libraries)
  # What is the build's own business: optimisation, warnings, dependencies, places of headers.
  list(FILTER flags EXCLUDE REGEX "^-(MMD|MP|g|O[0-9s]?|Wall|I.*|fPIC)$")
  list(FILTER libraries EXCLUDE REGEX "^-L")
  # CMake does not tell GNU's compilers the standard. Without the flag of constructors and destructors
  # instance variables would have neither. A lambda's captures look to it like a message at first, in
  # which a comma or a move to the same name would be wrong.
  target_compile_options(velk_cocoa INTERFACE
    "$<$<COMPILE_LANGUAGE:OBJC,OBJCXX>:${flags}>"
    "$<$<COMPILE_LANG_AND_ID:OBJC,GNU>:-std=c11>"
    "$<$<COMPILE_LANG_AND_ID:OBJCXX,GNU>:-std=c++20;-fobjc-call-cxx-cdtors;-Wno-unused-value;-Wno-self-move>"
    # A method has the parameters that its selector asks for.
    "$<$<COMPILE_LANGUAGE:OBJC,OBJCXX>:-Wno-unused-parameter>")
  target_include_directories(velk_cocoa SYSTEM INTERFACE ${headers})
  target_link_libraries(velk_cocoa INTERFACE ${libraries})
endif()
