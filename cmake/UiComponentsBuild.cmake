# Compiler settings and the one function that declares a library of this repository.

if(UICOMPONENTS_INSTALL)
    include(GNUInstallDirs)
endif()
include(GenerateExportHeader)

if(NOT CMAKE_CXX_STANDARD OR CMAKE_CXX_STANDARD LESS 17)
    set(CMAKE_CXX_STANDARD 17)
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(UICOMPONENTS_LIBRARY_TYPE SHARED)
if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
    set(UICOMPONENTS_LIBRARY_TYPE STATIC)
    if(UICOMPONENTS_DEVELOPER_MODE)
        message(FATAL_ERROR "The tests need shared libraries: UICOMPONENTS_DEVELOPER_MODE and "
            "BUILD_SHARED_LIBS=OFF exclude each other")
    endif()
endif()
if(UICOMPONENTS_DEVELOPER_MODE)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
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
        # Reports name lines and functions only: -g1 is enough, and saves a fifth of the compiler's time.
        target_compile_options(UiComponentsBuildOptions INTERFACE ${sanitizers} -O0 -g1)
        # Checks for undefined behaviour in the tests' own code take a sixth of the compiler's time.
        set(own_code "$<TARGET_PROPERTY:NAME>;$<TARGET_PROPERTY:LINK_LIBRARIES>")
        target_compile_options(UiComponentsBuildOptions INTERFACE
            "$<$<IN_LIST:UiComponentsTestSupport,${own_code}>:-fno-sanitize=undefined>")
        target_link_options(UiComponentsBuildOptions INTERFACE ${sanitizers})
    endif()
    if(UICOMPONENTS_COVERAGE)
        target_compile_options(UiComponentsBuildOptions INTERFACE --coverage)
        target_link_options(UiComponentsBuildOptions INTERFACE --coverage)
    endif()
endif()
if(UNIX AND NOT APPLE AND NOT UICOMPONENTS_SANITIZE)
    # A class with Q_OBJECT whose meta code is missing would otherwise link into a shared library.
    set(UICOMPONENTS_LINK_OPTIONS -Wl,--no-undefined
        "-Wl,--version-script=${CMAKE_CURRENT_LIST_DIR}/local-symbols.map")
    # A library uses its own exported classes directly instead of looking them up by name while it is
    # loaded. Its users must then be compiled with -fPIC, or they keep copies of the meta-objects; a Qt
    # built with reduced relocations demands that for its own sake, and asks for it here.
    list(APPEND UICOMPONENTS_LINK_OPTIONS
        $<$<IN_LIST:-fPIC,$<TARGET_PROPERTY:Qt5::Core,INTERFACE_COMPILE_OPTIONS>>:-Wl,-Bsymbolic>)
endif()

# uic_precompile(<target>): Qt's own headers are half of what a file of the product takes to compile. For builds
# of developers only.
function(uic_precompile target)
    if(NOT UICOMPONENTS_DEVELOPER_MODE)
        return()
    endif()
    if(NOT TARGET UiComponentsQtHeaders)
        file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/QtHeaders.cpp" CONTENT "// Nothing but the headers.\n")
        add_library(UiComponentsQtHeaders STATIC "${PROJECT_BINARY_DIR}/QtHeaders.cpp")
        target_link_libraries(UiComponentsQtHeaders PUBLIC Qt5::Widgets PRIVATE UiComponentsBuildOptions)
        target_precompile_headers(UiComponentsQtHeaders PRIVATE <QtWidgets>)
    endif()
    target_precompile_headers(${target} REUSE_FROM UiComponentsQtHeaders)
    # Without it ccache keeps nothing that is compiled with them.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()

# uic_library(<Name> PREFIX <prefix of target and file> NAMESPACE <exported namespace>
#     PUBLIC <class...>       names of header (and source) pairs that are installed
#     INTERNAL <class...>     the same, for the folder's own use only
#     LINK_PUBLIC <target...> LINK_PRIVATE <target...>)
#
# Makes <NAMESPACE>::<Name>, a shared library that is included as <Name/Class.h> (a static one where
# BUILD_SHARED_LIBS is off), and <Name>Testable, a static build of the same objects that tests of internal code
# link. A target must never link both.
# The target itself carries the prefix, so that a host that embeds this project keeps short names free.
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
    set(generated "${PROJECT_BINARY_DIR}/export/${name}")
    set(export_header "${generated}/${name}/${name}Export.h")
    get_filename_component(include_root "${CMAKE_CURRENT_SOURCE_DIR}" DIRECTORY)

    set(library ${arg_PREFIX}${name})
    if(TARGET ${arg_NAMESPACE}::${name})
        message(FATAL_ERROR "There is a target ${arg_NAMESPACE}::${name} already. "
            "A host that brings its own sets UICOMPONENTS_BUNDLED_PLATFORM to OFF.")
    endif()
    if(NOT UICOMPONENTS_BUNDLED_PLATFORM)
        uic_require_platform(${arg_LINK_PUBLIC} ${arg_LINK_PRIVATE})
    endif()

    add_library(${library} ${UICOMPONENTS_LIBRARY_TYPE} ${sources})
    add_library(${arg_NAMESPACE}::${name} ALIAS ${library})
    generate_export_header(${library} BASE_NAME ${upper} EXPORT_FILE_NAME "${export_header}")
    set(flavours ${library})
    if(UICOMPONENTS_DEVELOPER_MODE)
        add_library(${name}Testable STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:${library}>)
        set_target_properties(${name}Testable PROPERTIES AUTOMOC OFF LINKER_LANGUAGE CXX)
        list(APPEND flavours ${name}Testable)
    endif()
    foreach(target IN LISTS flavours)
        target_include_directories(${target} PUBLIC
            "$<BUILD_INTERFACE:${include_root}>" "$<BUILD_INTERFACE:${generated}>")
        target_link_libraries(${target}
            PUBLIC ${arg_LINK_PUBLIC} PRIVATE ${arg_LINK_PRIVATE} $<BUILD_INTERFACE:UiComponentsBuildOptions>)
        target_compile_features(${target} PUBLIC cxx_std_17)
    endforeach()
    if(UICOMPONENTS_LIBRARY_TYPE STREQUAL "STATIC")
        target_compile_definitions(${library} PUBLIC ${upper}_STATIC_DEFINE)
    else()
        target_link_options(${library} PRIVATE ${UICOMPONENTS_LINK_OPTIONS})
    endif()
    # What is one in the whole program keeps its library from ever being unloaded.
    target_compile_options(${library} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
    # An optimised build, without it, shows that each file of a library includes what it uses.
    if(Qt5::Widgets IN_LIST arg_LINK_PUBLIC AND CMAKE_BUILD_TYPE STREQUAL "Debug")
        uic_precompile(${library})
    endif()
    # While the major version is 0, a new minor version may break its users.
    set(soversion ${PROJECT_VERSION_MAJOR})
    if(soversion EQUAL 0)
        set(soversion 0.${PROJECT_VERSION_MINOR})
    endif()
    set_target_properties(${library} PROPERTIES
        OUTPUT_NAME "${library}" EXPORT_NAME ${name}
        VERSION ${PROJECT_VERSION} SOVERSION ${soversion}
        INSTALL_RPATH "$ORIGIN"
        UIC_NAME ${name} UIC_NAMESPACE "${arg_NAMESPACE}"
        UIC_PUBLIC "${arg_PUBLIC}" UIC_INTERNAL "${arg_INTERNAL}"
        UIC_LINK_PUBLIC "${arg_LINK_PUBLIC}" UIC_LINK_PRIVATE "${arg_LINK_PRIVATE}")
    if(NOT UICOMPONENTS_BUNDLED_PLATFORM)
        # The platform of somebody else may be installed anywhere.
        set_target_properties(${library} PROPERTIES INSTALL_RPATH_USE_LINK_PATH ON)
    endif()
    set_property(GLOBAL APPEND PROPERTY UIC_LIBRARIES ${library})

    if(UICOMPONENTS_INSTALL)
        target_include_directories(${library} PUBLIC
            "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/uicomponents>")
        install(TARGETS ${library} EXPORT ${arg_NAMESPACE}Targets
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
            RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
        install(FILES ${headers} "${export_header}"
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/uicomponents/${name})
    endif()
endfunction()

# uic_platform_library(<Name> ...): one of the replaceable libraries, as uic_library().
function(uic_platform_library name)
    uic_library(${name} PREFIX Platform NAMESPACE Platform ${ARGN})
endfunction()
