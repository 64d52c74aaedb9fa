# For each catalogue a header with the instantiations of the property classes that its rows bind, so that a change in a
# catalogue recompiles that catalogue alone.
set(INSTANTIATIONS_DIR ${CMAKE_CURRENT_BINARY_DIR}/instantiations)
file(MAKE_DIRECTORY ${INSTANTIATIONS_DIR})
file(GLOB CATALOGUES CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/../catalogues/*.cpp)
foreach(catalogue ${CATALOGUES})
    get_filename_component(name ${catalogue} NAME_WE)
    get_filename_component(catalogue ${catalogue} ABSOLUTE)
    set(header ${INSTANTIATIONS_DIR}/${name}.instantiations.h)
    add_custom_command(
        OUTPUT ${header}
        COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/instantiate.py ${catalogue} ${header}
        DEPENDS ${CMAKE_CURRENT_LIST_DIR}/instantiate.py ${catalogue}
        VERBATIM)
    set_source_files_properties(${catalogue} PROPERTIES OBJECT_DEPENDS ${header})
    list(APPEND INSTANTIATIONS ${header})
endforeach()
target_sources(CityGMLModel PRIVATE ${INSTANTIATIONS})
set_source_files_properties(${INSTANTIATIONS} PROPERTIES SKIP_AUTOMOC ON)
target_include_directories(CityGMLModel PRIVATE ${INSTANTIATIONS_DIR})
