# What cmake --install puts where: the programs, and in a folder of their own below lib the libraries
# that they and the view share and the view's bundle. Nothing depends on where the whole lies.
include(GNUInstallDirs)
set(velk_private_libraries lib/aac-audition)

install(TARGETS velk_ui velk_audio_unit LIBRARY DESTINATION ${velk_private_libraries})
set_target_properties(aac-measure PROPERTIES
  INSTALL_RPATH "$ORIGIN/../${velk_private_libraries}")
set_target_properties(velk_ui velk_audio_unit PROPERTIES INSTALL_RPATH "$ORIGIN")

if(TARGET aac-audition AND TARGET Velk_NordaAACConverter)
  set(bundle Velk_NordaAACConverter.bundle)
  set_target_properties(aac-audition PROPERTIES
    INSTALL_RPATH "$ORIGIN/../${velk_private_libraries}")
  set_target_properties(Velk_NordaAACConverter PROPERTIES INSTALL_RPATH "$ORIGIN/..")
  install(TARGETS aac-audition)
  install(TARGETS Velk_NordaAACConverter LIBRARY DESTINATION ${velk_private_libraries}/${bundle})
  install(DIRECTORY ${CMAKE_BINARY_DIR}/bundle/${bundle}/Resources
    DESTINATION ${velk_private_libraries}/${bundle})
  set(resources ${CMAKE_SOURCE_DIR}/resources)
  install(FILES ${resources}/desktop/aac-audition.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${resources}/metainfo/aac-audition.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${resources}/icons/aac-audition.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  install(FILES ${resources}/man/aac-audition.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${resources}/completions/aac-audition
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
endif()
