# What a reader finds beside the programs and beside the headers, and the licence, where Debian looks for it.
set(documents ${CMAKE_INSTALL_DATADIR}/doc)
set(docs ${PROJECT_SOURCE_DIR}/docs)
foreach(package_component IN ITEMS ${VELK_PACKAGE}/runtime ${VELK_PACKAGE}-dev/development)
  cmake_path(GET package_component PARENT_PATH package)
  cmake_path(GET package_component FILENAME component)
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE RENAME copyright
    DESTINATION ${documents}/${package} COMPONENT ${component})
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${docs}/converter.md ${docs}/measuring.md ${docs}/interface-file.md
  DESTINATION ${documents}/${VELK_PACKAGE} COMPONENT runtime)
install(FILES ${docs}/hosting.md DESTINATION ${documents}/${VELK_PACKAGE}-dev COMPONENT development)
install(DIRECTORY ${docs}/examples DESTINATION ${documents}/${VELK_PACKAGE}-dev COMPONENT development)
