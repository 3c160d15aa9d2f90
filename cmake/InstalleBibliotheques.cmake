# Puts the libraries that the program needs into `lib`, the toolkit's plugins into `plugins`, and the licences of both into
# `licences`. What every desktop has, and what belongs to its system and its graphics, stays out.
#   DOSSIER        folder of the program in the build tree
#   GREFFONS_QT    the toolkit's folder of plugins
set(DU_SYSTEME "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv|util|gcc_s|stdc\\+\\+)\\.so" "^lib(GL|EGL|OpenGL|drm|gbm|wayland)"
    "^lib(X11|X11-xcb|xcb|Xau|Xdmcp)\\.so" "^lib(fontconfig|freetype|harfbuzz|expat|z)\\.so"
    "^lib(glib|gobject|gthread|gio|gmodule)-2" "^lib(dbus-1|systemd|cups)\\.so")
set(MOTIFS_GREFFONS platforms/libqxcb.so platforms/libqoffscreen.so platforms/libqwayland-*.so xcbglintegrations/*.so
    wayland-*/*.so platforminputcontexts/*.so printsupport/*.so)

set(RACINE "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
list(TRANSFORM MOTIFS_GREFFONS PREPEND ${GREFFONS_QT}/)
file(GLOB GREFFONS ${MOTIFS_GREFFONS})
foreach(GREFFON IN LISTS GREFFONS)
  cmake_path(GET GREFFON PARENT_PATH GENRE)
  cmake_path(GET GENRE FILENAME GENRE)
  file(INSTALL ${GREFFON} DESTINATION "${CMAKE_INSTALL_PREFIX}/plugins/${GENRE}")
endforeach()

file(GET_RUNTIME_DEPENDENCIES
  EXECUTABLES ${DOSSIER}/velorin ${DOSSIER}/velorin-batch
  MODULES ${GREFFONS}
  PRE_EXCLUDE_REGEXES ${DU_SYSTEME}
  RESOLVED_DEPENDENCIES_VAR BIBLIOTHEQUES)
foreach(BIBLIOTHEQUE IN LISTS BIBLIOTHEQUES)
  file(INSTALL ${BIBLIOTHEQUE} DESTINATION "${CMAKE_INSTALL_PREFIX}/lib" FOLLOW_SYMLINK_CHAIN)
endforeach()

# The package manager knows which package a library is of, and each package keeps its licence.
find_program(DPKG_QUERY dpkg-query)
foreach(FICHIER IN LISTS BIBLIOTHEQUES GREFFONS)
  file(REAL_PATH ${FICHIER} FICHIER)
  execute_process(COMMAND ${DPKG_QUERY} -S ${FICHIER} OUTPUT_VARIABLE PAQUETAGE RESULT_VARIABLE STATUT ERROR_QUIET)
  if(STATUT EQUAL 0 AND PAQUETAGE MATCHES "^([^:,]+)")
    set(NOM ${CMAKE_MATCH_1})
    file(MAKE_DIRECTORY "${RACINE}/licences")
    file(COPY_FILE /usr/share/doc/${NOM}/copyright "${RACINE}/licences/${NOM}")
  endif()
endforeach()
