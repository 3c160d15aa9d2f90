# The packages, made by `cpack` from a build: a Debian package for a whole system, and an archive that is unpacked anywhere.
# Each is a component of its own. `cmake --install` makes the folder of the archive.
set(PAQUET ${CMAKE_SOURCE_DIR}/paquet)

# What stands in the folder of the program beside the executables, whichever package it comes in.
function(velorin_installe_contenu COMPOSANT DESTINATION)
  install(FILES ${VELORIN_DOSSIER}/BaseDatos.Mdb ${VELORIN_DOSSIER}/CameAng.cfg DESTINATION ${DESTINATION}
          COMPONENT ${COMPOSANT} ${ARGN})
  install(DIRECTORY ${VELORIN_DOSSIER}/Profils DESTINATION ${DESTINATION} COMPONENT ${COMPOSANT} ${ARGN})
  # One a language; a build without help has none.
  install(FILES ${VELORIN_DOSSIER}/CamesFr.chm ${VELORIN_DOSSIER}/CamesEs.chm ${VELORIN_DOSSIER}/CamesUk.chm
          DESTINATION ${DESTINATION} COMPONENT ${COMPOSANT} ${ARGN})
endfunction()

# A folder that needs nothing but a desktop: the libraries stand in it, too.
function(velorin_archive)
  # An old-style path, which also holds for what the libraries need themselves.
  set_target_properties(velorin velorin-batch PROPERTIES INSTALL_RPATH "$ORIGIN/lib" BUILD_WITH_INSTALL_RPATH ON)
  target_link_options(velorin PRIVATE -Wl,--disable-new-dtags)
  target_link_options(velorin-batch PRIVATE -Wl,--disable-new-dtags)

  install(TARGETS velorin velorin-batch RUNTIME DESTINATION . COMPONENT dossier)
  velorin_installe_contenu(dossier .)
  install(DIRECTORY ${VELORIN_DOSSIER}/translations DESTINATION . COMPONENT dossier)
  install(FILES ${PAQUET}/qt.conf DESTINATION . COMPONENT dossier)
  install(FILES CHANGELOG.md DESTINATION . COMPONENT dossier)
  set(GREFFONS_QT ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS})
  install(CODE "set(DOSSIER [[${VELORIN_DOSSIER}]])\nset(GREFFONS_QT [[${GREFFONS_QT}]])" COMPONENT dossier)
  install(SCRIPT ${CMAKE_SOURCE_DIR}/cmake/InstalleBibliotheques.cmake COMPONENT dossier)
endfunction()

# A compressed copy of a text, the same from every build.
function(velorin_comprime SOURCE NOM)
  find_program(GZIP gzip REQUIRED)
  set(SORTIE ${CMAKE_BINARY_DIR}/paquet/${NOM}.gz)
  add_custom_command(
    OUTPUT ${SORTIE}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/paquet
    COMMAND ${GZIP} -9nc ${SOURCE} > ${SORTIE}
    DEPENDS ${SOURCE}
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY VELORIN_COMPRIMES ${SORTIE})
endfunction()

# The layout of a system: executables in bin, the folder of the program in share/velorin, what a desktop reads where it
# looks for it.
function(velorin_systeme)
  set(ICI COMPONENT systeme EXCLUDE_FROM_ALL)
  set(ICONES ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
  install(TARGETS velorin velorin-batch RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} ${ICI})
  foreach(EXECUTABLE velorin velorin-batch)
    install(CODE "file(RPATH_REMOVE FILE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/${EXECUTABLE}\")" ${ICI})
  endforeach()
  velorin_installe_contenu(systeme ${CMAKE_INSTALL_DATADIR}/velorin EXCLUDE_FROM_ALL)
  install(FILES ${PAQUET}/velorin.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications ${ICI})
  install(FILES ${PAQUET}/org.velorin.Velorin.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo ${ICI})
  install(FILES ${PAQUET}/velorin.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages ${ICI})
  install(FILES ${PAQUET}/icones/velorin.svg DESTINATION ${ICONES}/apps ${ICI})
  install(FILES ${PAQUET}/icones/application-x-velorin-study.svg ${PAQUET}/icones/application-x-velorin-solids.svg
          DESTINATION ${ICONES}/mimetypes ${ICI})

  velorin_comprime(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog)
  velorin_comprime(${PAQUET}/changelog changelog.Debian)
  velorin_comprime(${PAQUET}/velorin.1 velorin.1)
  velorin_comprime(${PAQUET}/velorin-batch.1 velorin-batch.1)
  get_property(COMPRIMES GLOBAL PROPERTY VELORIN_COMPRIMES)
  add_custom_target(textes_paquet ALL DEPENDS ${COMPRIMES})
  set(TEXTES ${CMAKE_BINARY_DIR}/paquet)
  install(FILES ${TEXTES}/changelog.gz ${TEXTES}/changelog.Debian.gz ${PAQUET}/copyright
          DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/velorin ${ICI})
  install(FILES ${PAQUET}/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME velorin ${ICI})
  install(FILES ${TEXTES}/velorin.1.gz ${TEXTES}/velorin-batch.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 ${ICI})
endfunction()

macro(velorin_paquets)
  velorin_archive()
  velorin_systeme()

  set(CPACK_GENERATOR DEB TGZ)
  set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_SOURCE_DIR}/cmake/ConfigurePaquet.cmake)
  set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/paquets)
  set(CPACK_PACKAGE_NAME velorin)
  set(CPACK_SYSTEM_NAME linux-${CMAKE_SYSTEM_PROCESSOR})
  set(CPACK_PACKAGE_VENDOR Velorin)
  set(CPACK_PACKAGE_CONTACT "Velorin maintainers <maintainers@velorin.example>")
  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "design of cams and intermittent-motion mechanisms")
  set(CPACK_PACKAGE_DESCRIPTION_FILE ${PAQUET}/description.txt)
  set(CPACK_STRIP_FILES ON)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
  set(CPACK_DEBIAN_PACKAGE_SECTION science)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  # The toolkit's texts are data, loaded by name: no library tells that they are needed.
  set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-translations-l10n)
  # Pages are laid out in its fixed-pitch font; without it another one takes its place.
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS fonts-liberation)
  include(CPack)
endmacro()
