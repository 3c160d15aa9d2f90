# The folder of the program: executables, catalogue database, configuration, worked examples, the toolkit's texts. The
# build makes it complete in the build tree; cmake/Paquets.cmake puts it into packages.
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

  velorin_aide(AIDES)

  set(ACCOMPAGNEMENT ${BASE} ${AIDES})
  file(GLOB EXEMPLES CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} Profils/*)
  foreach(FICHIER IN LISTS EXEMPLES ITEMS CameAng.cfg)
    add_custom_command(
      OUTPUT ${VELORIN_DOSSIER}/${FICHIER}
      COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/${FICHIER} ${VELORIN_DOSSIER}/${FICHIER}
      DEPENDS ${CMAKE_SOURCE_DIR}/${FICHIER}
      VERBATIM)
    list(APPEND ACCOMPAGNEMENT ${VELORIN_DOSSIER}/${FICHIER})
  endforeach()
  # Without the package of the toolkit's texts these stay English.
  foreach(LANGUE fr es)
    set(TEXTES_QT ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}/qtbase_${LANGUE}.qm)
    if(NOT EXISTS ${TEXTES_QT})
      message(WARNING "No ${TEXTES_QT}: install qt6-translations-l10n")
      continue()
    endif()
    add_custom_command(
      OUTPUT ${VELORIN_DOSSIER}/translations/qtbase_${LANGUE}.qm
      COMMAND ${CMAKE_COMMAND} -E make_directory ${VELORIN_DOSSIER}/translations
      COMMAND ${CMAKE_COMMAND} -E copy ${TEXTES_QT} ${VELORIN_DOSSIER}/translations/
      DEPENDS ${TEXTES_QT}
      VERBATIM)
    list(APPEND ACCOMPAGNEMENT ${VELORIN_DOSSIER}/translations/qtbase_${LANGUE}.qm)
  endforeach()
  add_custom_target(dossier_programme ALL DEPENDS ${ACCOMPAGNEMENT})
endfunction()
