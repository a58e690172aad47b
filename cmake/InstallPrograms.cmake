# The programs and what goes along with them: manual pages, completions, and what a desktop wants to know.
set(resources ${PROJECT_SOURCE_DIR}/resources)

# velk_install_program(<target>)
function(velk_install_program program)
  velk_install_rpath(${program} ${CMAKE_INSTALL_BINDIR})
  install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
  configure_file(${resources}/man/${program}.1.in ${PROJECT_BINARY_DIR}/man/${program}.1 @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/man/${program}.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT runtime)
  install(FILES ${resources}/completions/${program}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT runtime)
endfunction()

velk_install_program(aac-measure)
if(TARGET aac-audition)
  velk_install_program(aac-audition)
  install(FILES ${resources}/desktop/aac-audition.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT runtime)
  install(FILES ${resources}/icons/aac-audition.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT runtime)
  configure_file(${resources}/metainfo/aac-audition.metainfo.xml.in
    ${PROJECT_BINARY_DIR}/metainfo/aac-audition.metainfo.xml @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/metainfo/aac-audition.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT runtime)
endif()
