# The help files of the program: the pages and pictures of each language in docs/aide, packed into the file of that
# language beside the program.

# velorin_aide(VAR): leaves the paths of the files in VAR
function(velorin_aide FICHIERS)
  find_package(Qt6 6.4 REQUIRED COMPONENTS CoreTools)
  set(DOCS ${CMAKE_SOURCE_DIR}/docs/aide)
  set(SORTIES "")
  foreach(AIDE fr:CamesFr.chm es:CamesEs.chm en:CamesUk.chm)
    string(REPLACE ":" ";" AIDE ${AIDE})
    list(GET AIDE 0 LANGUE)
    list(GET AIDE 1 NOM)
    file(GLOB PAGES CONFIGURE_DEPENDS RELATIVE ${DOCS}/${LANGUE} ${DOCS}/${LANGUE}/*.md ${DOCS}/${LANGUE}/images/*.png)
    set(LISTE "<file alias=\"sommaire.tsv\">${DOCS}/sommaire.tsv</file>\n")
    set(SOURCES ${DOCS}/sommaire.tsv)
    foreach(PAGE IN LISTS PAGES)
      string(APPEND LISTE "<file alias=\"${PAGE}\">${DOCS}/${LANGUE}/${PAGE}</file>\n")
      list(APPEND SOURCES ${DOCS}/${LANGUE}/${PAGE})
    endforeach()
    set(QRC ${CMAKE_BINARY_DIR}/aide/${LANGUE}.qrc)
    file(CONFIGURE OUTPUT ${QRC} CONTENT "<RCC><qresource>\n@LISTE@</qresource></RCC>\n" @ONLY)
    add_custom_command(
      OUTPUT ${VELORIN_DOSSIER}/${NOM}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${VELORIN_DOSSIER}
      COMMAND Qt6::rcc --binary ${QRC} --output ${VELORIN_DOSSIER}/${NOM}
      DEPENDS ${QRC} ${SOURCES}
      COMMENT "Packing the help ${NOM}"
      VERBATIM)
    list(APPEND SORTIES ${VELORIN_DOSSIER}/${NOM})
  endforeach()
  set(${FICHIERS} ${SORTIES} PARENT_SCOPE)
endfunction()
