# Compiler settings and the one function that declares a library of this repository.

include(GNUInstallDirs)
include(GenerateExportHeader)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
if(UICOMPONENTS_DEVELOPER_MODE)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
    find_program(UICOMPONENTS_CCACHE ccache)
    if(UICOMPONENTS_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
        set(CMAKE_CXX_COMPILER_LAUNCHER "${UICOMPONENTS_CCACHE}")
    endif()
endif()

# What every target of the repository is compiled with.
add_library(UiComponentsBuildOptions INTERFACE)
target_compile_definitions(UiComponentsBuildOptions INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
    QT_DEPRECATED_WARNINGS QT_STRICT_ITERATORS)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(UiComponentsBuildOptions INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
        -Wformat=2 -Wextra-semi -Wzero-as-null-pointer-constant
        -Wsuggest-override
        $<$<BOOL:${UICOMPONENTS_WARNINGS_AS_ERRORS}>:-Werror>)
    if(UICOMPONENTS_SANITIZE)
        # Without -fno-sanitize-recover the undefined-behaviour sanitizer reports and goes on.
        set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined
            -fno-omit-frame-pointer)
        # gcc sees uses of empty optionals where its own instrumentation hides the check.
        target_compile_options(UiComponentsBuildOptions INTERFACE
            ${sanitizers} -O1 -Wno-maybe-uninitialized)
        target_link_options(UiComponentsBuildOptions INTERFACE ${sanitizers})
    endif()
    if(UICOMPONENTS_COVERAGE)
        target_compile_options(UiComponentsBuildOptions INTERFACE --coverage)
        target_link_options(UiComponentsBuildOptions INTERFACE --coverage)
    endif()
endif()
if(UNIX AND NOT APPLE AND NOT UICOMPONENTS_SANITIZE)
    # A class with Q_OBJECT whose meta code is missing would otherwise link into a shared library.
    set(UICOMPONENTS_LINK_STRICT -Wl,--no-undefined)
endif()

# uic_library(<Name> FOLDER <below> PREFIX <output prefix> NAMESPACE <exported namespace>
#     PUBLIC <class...>       names of header (and source) pairs that are installed
#     INTERNAL <class...>     the same, for the folder's own use only
#     LINK_PUBLIC <target...> LINK_PRIVATE <target...>)
#
# Makes <NAMESPACE>::<Name>, a shared library that is included as <Name/Class.h>, and <Name>Testable,
# a static build of the same objects that tests of internal code link. A target must never link both.
function(uic_library name)
    cmake_parse_arguments(arg "" "PREFIX;NAMESPACE" "PUBLIC;INTERNAL;LINK_PUBLIC;LINK_PRIVATE" ${ARGN})

    set(headers)
    set(sources)
    foreach(class IN LISTS arg_PUBLIC arg_INTERNAL)
        list(APPEND sources "${class}.h")
        if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${class}.cpp")
            list(APPEND sources "${class}.cpp")
        endif()
    endforeach()
    list(TRANSFORM arg_PUBLIC APPEND ".h" OUTPUT_VARIABLE headers)

    string(TOUPPER "${name}" upper)
    set(generated "${CMAKE_BINARY_DIR}/export/${name}")
    set(export_header "${generated}/${name}/${name}Export.h")
    get_filename_component(include_root "${CMAKE_CURRENT_SOURCE_DIR}" DIRECTORY)

    add_library(${name}Objects OBJECT ${sources})
    add_library(${name} SHARED $<TARGET_OBJECTS:${name}Objects>)
    add_library(${arg_NAMESPACE}::${name} ALIAS ${name})
    generate_export_header(${name} BASE_NAME ${upper} EXPORT_FILE_NAME "${export_header}")
    # The objects are those of the shared library, so they see its export macro as the library does.
    target_compile_definitions(${name}Objects PRIVATE ${name}_EXPORTS)
    set(flavours ${name})
    if(UICOMPONENTS_DEVELOPER_MODE)
        add_library(${name}Testable STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:${name}Objects>)
        list(APPEND flavours ${name}Testable)
    endif()
    foreach(target IN LISTS flavours ITEMS ${name}Objects)
        target_include_directories(${target} PUBLIC
            "$<BUILD_INTERFACE:${include_root}>" "$<BUILD_INTERFACE:${generated}>"
            "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/uicomponents>")
        target_link_libraries(${target}
            PUBLIC ${arg_LINK_PUBLIC} PRIVATE ${arg_LINK_PRIVATE} $<BUILD_INTERFACE:UiComponentsBuildOptions>)
        target_compile_features(${target} PUBLIC cxx_std_17)
    endforeach()
    set_target_properties(${flavours} PROPERTIES AUTOMOC OFF LINKER_LANGUAGE CXX)
    target_link_options(${name} PRIVATE ${UICOMPONENTS_LINK_STRICT})
    set_target_properties(${name} PROPERTIES
        OUTPUT_NAME "${arg_PREFIX}${name}" EXPORT_NAME ${name}
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH "$ORIGIN"
        UIC_PUBLIC_HEADERS "${headers}" UIC_LINK_PUBLIC "${arg_LINK_PUBLIC}"
        UIC_LINK_PRIVATE "${arg_LINK_PRIVATE}" UIC_NAMESPACE "${arg_NAMESPACE}")

    set_property(GLOBAL APPEND PROPERTY UIC_LIBRARIES ${name})
    install(TARGETS ${name} EXPORT ${arg_NAMESPACE}Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES ${headers} "${export_header}"
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/uicomponents/${name})
endfunction()

# uic_platform_library(<Name> ...): one of the replaceable libraries, as uic_library().
function(uic_platform_library name)
    uic_library(${name} PREFIX Platform NAMESPACE Platform ${ARGN})
endfunction()
