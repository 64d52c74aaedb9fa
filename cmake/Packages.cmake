# Packages for Debian, by `cpack -G DEB` in the build directory: one for each component of an installation.
set(TOLVIK_MAINTAINER "Tolvik city models <tolvik@example.org>" CACHE STRING "Who stands as the maintainer in packages")
mark_as_advanced(TOLVIK_MAINTAINER)

set(CPACK_PACKAGE_NAME tolvik)
set(CPACK_PACKAGE_CONTACT ${TOLVIK_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "models of CityGML documents")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL runtime plugin programs development documentation)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libtolvik${TOLVIK_SOVERSION})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/triggers)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "models of CityGML documents, shared libraries
 A CityGML 2.0 document as a list, as a tree and as trees of properties for Qt,
 with extensions for energy, utility networks, land administration, urban
 furniture and building components.")

set(CPACK_DEBIAN_PLUGIN_PACKAGE_NAME tolvik-plugin)
set(CPACK_COMPONENT_PLUGIN_DEPENDS runtime)
set(CPACK_COMPONENT_PLUGIN_DESCRIPTION "models of CityGML documents, plug-in
 The models for programs that look for them at run time, and for scripts.")

set(CPACK_DEBIAN_PROGRAMS_PACKAGE_NAME tolvik)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SECTION science)
set(CPACK_COMPONENT_PROGRAMS_DEPENDS runtime plugin)
set(CPACK_COMPONENT_PROGRAMS_DESCRIPTION "viewer and terminal tool for CityGML documents
 Programs that show CityGML 2.0 documents, check them, and change attributes
 without touching anything else.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtolvik-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "xsdcxx, libxerces-c-dev, qtbase5-dev, liblog4cplus-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "models of CityGML documents, development files
 Headers, schemas, and files for CMake and pkg-config.")

set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME tolvik-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_DOCUMENTATION_DESCRIPTION "models of CityGML documents, documentation
 What a host may rely on, how things are done, and examples.")

# What Debian wants to find in each package and nobody else does.
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_BINARY_DIR}/DebianFiles.cmake)
configure_file(cmake/DebianFiles.cmake.in ${PROJECT_BINARY_DIR}/DebianFiles.cmake @ONLY)
include(CPack)
