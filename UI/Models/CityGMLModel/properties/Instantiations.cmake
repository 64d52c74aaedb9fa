# For each catalogue a header with the instantiations of the property classes that its rows bind, so that a change in a
# catalogue recompiles that catalogue alone.
set(CATALOGUE_WORDS ${CMAKE_CURRENT_SOURCE_DIR}/catalogues/Catalogue.h)
set(INSTANTIATIONS_DIR ${CMAKE_CURRENT_BINARY_DIR}/instantiations)
file(MAKE_DIRECTORY ${INSTANTIATIONS_DIR})
foreach(catalogue ${CATALOGUES})
    get_filename_component(name ${catalogue} NAME_WE)
    set(header ${INSTANTIATIONS_DIR}/${name}.instantiations.h)
    add_custom_command(
        OUTPUT ${header}
        COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/instantiate.py
            ${CMAKE_CURRENT_SOURCE_DIR}/${catalogue} ${CATALOGUE_WORDS} ${header}
        DEPENDS ${CMAKE_CURRENT_LIST_DIR}/instantiate.py ${catalogue} ${CATALOGUE_WORDS}
        VERBATIM)
    set_source_files_properties(${catalogue} PROPERTIES OBJECT_DEPENDS ${header})
    list(APPEND INSTANTIATIONS ${header})
endforeach()
# A target of their own: they are also wanted without the libraries, to check the source.
add_custom_target(Instantiations DEPENDS ${INSTANTIATIONS})
add_dependencies(CityGMLModel Instantiations)
target_sources(CityGMLModel PRIVATE ${INSTANTIATIONS})
set_source_files_properties(${INSTANTIATIONS} PROPERTIES SKIP_AUTOMOC ON)
target_include_directories(CityGMLModel PRIVATE ${INSTANTIATIONS_DIR})
