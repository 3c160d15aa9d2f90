# Compiles the files of a folder as one, where VELORIN_ENSEMBLES asks for it: the headers are read once. It is for the builds that
# nobody ships; the others show when a file leaves out what it uses.
option(VELORIN_ENSEMBLES "Compile the files of a folder as one" OFF)

# Folders whose files give different things the same name.
set(VELORIN_SANS_ENSEMBLE
    app batch studies widgets
    cams/screens cylindrical/screens globoidal/screens inertia/screens laws/screens planecams/screens studies/screens
    tests/app tests/batch tests/data tests/globoidal tests/inertia)

function(velorin_ensembles CIBLE)
  if(NOT VELORIN_ENSEMBLES)
    return()
  endif()
  get_target_property(SOURCES ${CIBLE} SOURCES)
  foreach(SOURCE IN LISTS SOURCES)
    get_filename_component(CHEMIN ${SOURCE} ABSOLUTE)
    file(RELATIVE_PATH CHEMIN ${CMAKE_SOURCE_DIR} ${CHEMIN})
    get_filename_component(DOSSIER ${CHEMIN} DIRECTORY)
    if(NOT DOSSIER IN_LIST VELORIN_SANS_ENSEMBLE AND NOT DOSSIER MATCHES "^tests/.*/screens$|^tests/outils$")
      set_source_files_properties(${SOURCE} PROPERTIES UNITY_GROUP ${DOSSIER})
    endif()
  endforeach()
  set_target_properties(${CIBLE} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
