# The folder of the program: executables, catalogue database, configuration, worked examples. The build makes it complete
# in the build tree; `cmake --install` makes the same folder anywhere.
set(VELORIN_DOSSIER ${CMAKE_BINARY_DIR}/velorin)

function(velorin_dossier_programme)
  set_target_properties(velorin velorin-batch PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${VELORIN_DOSSIER})

  file(GLOB CATALOGUES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/catalogue/*.tsv)
  set(BASE ${VELORIN_DOSSIER}/BaseDatos.Mdb)
  add_custom_command(
    OUTPUT ${BASE}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${VELORIN_DOSSIER}
    COMMAND fabrique_base ${CMAKE_SOURCE_DIR}/data/catalogue ${BASE}
    DEPENDS fabrique_base ${CATALOGUES}
    COMMENT "Building the catalogue database"
    VERBATIM)

  set(ACCOMPAGNEMENT ${BASE})
  file(GLOB EXEMPLES CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} Profils/*)
  foreach(FICHIER IN LISTS EXEMPLES ITEMS CameAng.cfg)
    add_custom_command(
      OUTPUT ${VELORIN_DOSSIER}/${FICHIER}
      COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/${FICHIER} ${VELORIN_DOSSIER}/${FICHIER}
      DEPENDS ${CMAKE_SOURCE_DIR}/${FICHIER}
      VERBATIM)
    list(APPEND ACCOMPAGNEMENT ${VELORIN_DOSSIER}/${FICHIER})
  endforeach()
  add_custom_target(dossier_programme ALL DEPENDS ${ACCOMPAGNEMENT})

  install(TARGETS velorin velorin-batch RUNTIME DESTINATION .)
  install(FILES ${BASE} CameAng.cfg DESTINATION .)
  install(DIRECTORY Profils DESTINATION .)
endfunction()
