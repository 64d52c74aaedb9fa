# Where the parts of the project are installed. Whatever makes one calls one of these functions:
#
#   tolvik_install_library(TARGET COMPONENT INCLUDE_FOLDER)   a shared library that hosts link
#   tolvik_install_headers(INCLUDE_FOLDER BASE HEADER...)     headers, at their paths below BASE
#   tolvik_install_plugin(TARGET)                             a plug-in for models
#   tolvik_install_program(TARGET MAN-PAGE...)                a program
#   tolvik_install_module(TARGET)                             what a program loads when it needs it
#
# The packages that an installation is split into are the install components `runtime`, `plugin`, `programs`,
# `development` and `documentation`. An installation can be moved as a whole: what finds something else in it does so
# by the path from itself.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(TOLVIK_INCLUDE_DIR ${CMAKE_INSTALL_INCLUDEDIR}/tolvik)
set(TOLVIK_DATA_DIR ${CMAKE_INSTALL_DATADIR}/tolvik)
set(TOLVIK_PLUGIN_DIR ${CMAKE_INSTALL_LIBDIR}/tolvik/plugins)
set(TOLVIK_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Tolvik)

# Below 1.0 each minor version has another binary interface.
set(TOLVIK_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

# tolvik_name_in_logs(SOURCE...): sources whose log lines say where in the project they stand. Only these are told a
# directory, so that the compiler's cache serves every checkout.
function(tolvik_name_in_logs)
    set_property(SOURCE ${ARGN} APPEND PROPERTY COMPILE_OPTIONS -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)
endfunction()

# Sets the path on which an installed file finds the libraries.
function(tolvik_set_library_path target folder)
    file(RELATIVE_PATH path /${folder} /${CMAKE_INSTALL_LIBDIR})
    string(REGEX REPLACE "/$" "" path "$ORIGIN/${path}")
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${path}")
endfunction()

function(tolvik_install_library target component include_folder)
    set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${TOLVIK_SOVERSION})
    target_include_directories(${target} INTERFACE $<INSTALL_INTERFACE:${TOLVIK_INCLUDE_DIR}/${include_folder}>)
    tolvik_set_library_path(${target} ${CMAKE_INSTALL_LIBDIR})
    if(TOLVIK_INSTALL)
        install(TARGETS ${target} EXPORT Tolvik${component}
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
    endif()
endfunction()

function(tolvik_install_headers include_folder base)
    if(NOT TOLVIK_INSTALL)
        return()
    endif()
    foreach(header IN LISTS ARGN)
        cmake_path(GET header PARENT_PATH folder)
        install(FILES ${base}/${header} DESTINATION ${TOLVIK_INCLUDE_DIR}/${include_folder}/${folder}
            COMPONENT development)
    endforeach()
endfunction()

function(tolvik_install_plugin target)
    tolvik_set_library_path(${target} ${TOLVIK_PLUGIN_DIR})
    if(TOLVIK_INSTALL)
        install(TARGETS ${target} LIBRARY DESTINATION ${TOLVIK_PLUGIN_DIR} COMPONENT plugin)
    endif()
endfunction()

function(tolvik_install_program target)
    tolvik_set_library_path(${target} ${CMAKE_INSTALL_BINDIR})
    if(TOLVIK_INSTALL)
        install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT programs)
        install(FILES ${ARGN} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT programs)
    endif()
endfunction()

function(tolvik_install_module target)
    tolvik_set_library_path(${target} ${CMAKE_INSTALL_LIBDIR}/tolvik)
    if(TOLVIK_INSTALL)
        install(TARGETS ${target} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/tolvik COMPONENT programs)
    endif()
endfunction()

# tolvik_install_pkgconfig(NAME LIBRARY INCLUDE_FOLDER DESCRIPTION REQUIRED-PACKAGE...)
function(tolvik_install_pkgconfig name library include_folder description)
    file(RELATIVE_PATH PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" PC_PREFIX "${PC_PREFIX}")
    list(JOIN ARGN " " PC_REQUIRES)
    set(PC_NAME ${name})
    set(PC_LIBRARY ${library})
    set(PC_FOLDER ${include_folder})
    set(PC_DESCRIPTION ${description})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()

if(NOT TOLVIK_INSTALL)
    return()
endif()

# Debug information names the folders of the build, which mean nothing elsewhere.
install(CODE "set(CMAKE_INSTALL_DO_STRIP TRUE)" ALL_COMPONENTS)

foreach(component Binding Platform Model)
    install(EXPORT Tolvik${component} NAMESPACE Tolvik:: FILE Tolvik${component}Targets.cmake
        DESTINATION ${TOLVIK_PACKAGE_DIR} COMPONENT development)
endforeach()
configure_package_config_file(cmake/TolvikConfig.cmake.in ${PROJECT_BINARY_DIR}/TolvikConfig.cmake
    INSTALL_DESTINATION ${TOLVIK_PACKAGE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TolvikConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TolvikConfig.cmake ${PROJECT_BINARY_DIR}/TolvikConfigVersion.cmake
    DESTINATION ${TOLVIK_PACKAGE_DIR} COMPONENT development)

tolvik_install_pkgconfig(tolvik-binding CityGMLBinding binding "classes, reader and writer of CityGML documents"
    xerces-c)
tolvik_install_pkgconfig(tolvik-platform TolvikPlatform platform "framework of models of documents"
    "tolvik-binding = ${PROJECT_VERSION}" Qt5Core Qt5Gui Qt5Widgets log4cplus)
tolvik_install_pkgconfig(tolvik-model CityGMLModel model "Qt item models of CityGML documents"
    "tolvik-platform = ${PROJECT_VERSION}")

install(FILES ${TOLVIK_SCHEMAS} DESTINATION ${TOLVIK_DATA_DIR}/schemas COMPONENT development)
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tolvik COMPONENT documentation)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tolvik/docs COMPONENT documentation
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png")
install(DIRECTORY examples/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tolvik/examples COMPONENT documentation)
