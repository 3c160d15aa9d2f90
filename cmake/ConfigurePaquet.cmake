# Read by cpack once for each package: which component it holds, and where that stands.
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 CONSTRUCTION)
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CONSTRUCTION};Velorin;systeme;/")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CONSTRUCTION};Velorin;dossier;/")
endif()
