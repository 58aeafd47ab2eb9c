# The languages of all texts, and how a catalogue (.ts) gets into a library or program.

if(UICOMPONENTS_DEVELOPER_MODE OR UICOMPONENTS_GALLERY)
    find_package(Qt5 5.15 REQUIRED COMPONENTS LinguistTools)
else()
    find_package(Qt5LinguistTools 5.15 QUIET)
    if(NOT Qt5LinguistTools_FOUND)
        message(STATUS "Qt's LinguistTools were not found: the texts are English, and no translations are installed")
    endif()
endif()

# The texts in the sources are English; the library alone has a catalogue of English, with names for people.
set(UICOMPONENTS_LANGUAGES ar de es fr ja zh_CN)

# uic_catalogues(<out> <name> <folder of the .ts> <folder of the .qm> <code...>): compiles <name>_<code>.ts
function(uic_catalogues out name sources folder)
    set(catalogues)
    foreach(code IN LISTS ARGN)
        list(APPEND catalogues "${sources}/${name}_${code}.ts")
    endforeach()
    set_source_files_properties(${catalogues} PROPERTIES OUTPUT_LOCATION "${folder}")
    qt5_add_translation(compiled ${catalogues})
    set(${out} ${compiled} PARENT_SCOPE)
endfunction()

# uic_catalogue_resources(<out> <name> <prefix> <file.qm...>): a source file with the resources
# :<prefix>/<file>.qm, for Q_INIT_RESOURCE(<name>)
function(uic_catalogue_resources out name UIC_RESOURCE_PREFIX)
    set(UIC_RESOURCE_FILES "")
    foreach(file IN LISTS ARGN)
        get_filename_component(alias "${file}" NAME)
        string(APPEND UIC_RESOURCE_FILES "        <file alias=\"${alias}\">${file}</file>\n")
    endforeach()
    configure_file("${PROJECT_SOURCE_DIR}/cmake/resources.qrc.in" "${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc" @ONLY)
    qt5_add_resources(resources "${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc")
    set_source_files_properties(${resources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    set(${out} ${resources} PARENT_SCOPE)
endfunction()
