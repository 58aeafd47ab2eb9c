# uic_test(<Class> PROGRAM <name> NAME <test> LABEL <label> LINK <target...> [SOURCES <file...>]
#     [LAUNCHER <command...>] ENVIRONMENT <variable...> [PLAIN_LITERALS]): tst_<Class>.cpp of this folder, run
# as one test. PLAIN_LITERALS is for tables of texts, which may be converted to a QString.
#
# The classes of a PROGRAM are linked into one file, tst_<name>, and each runs in a process of its own:
# "tst_<name> <Class> [function...]". Hundreds of small programs would take longer to link, and moc longer to
# start for each, than all of them take to compile. A target must never link a library and its Testable:
# the tests of internal code are programs of their own.
#
# A warning that the test did not announce with QTest::ignoreMessage() fails it.
function(uic_test class)
    cmake_parse_arguments(arg "PLAIN_LITERALS" "PROGRAM;NAME;LABEL" "LINK;SOURCES;LAUNCHER;ENVIRONMENT" ${ARGN})
    set(program tst_${arg_PROGRAM})
    if(NOT TARGET ${program})
        add_executable(${program})
        target_link_libraries(${program} PRIVATE UiComponentsTestSupport UiComponentsBuildOptions)
        if(UIC_TEST_OPTIONS)
            # Other options, other headers.
            target_compile_options(${program} PRIVATE ${UIC_TEST_OPTIONS})
            target_precompile_headers(${program} PRIVATE <QtTest> <QtWidgets>)
        else()
            target_precompile_headers(${program} REUSE_FROM UiComponentsTestSupport)
        endif()
    endif()
    target_sources(${program} PRIVATE tst_${class}.cpp ${arg_SOURCES})
    target_link_libraries(${program} PRIVATE ${arg_LINK})
    set_property(SOURCE tst_${class}.cpp TARGET_DIRECTORY ${program} APPEND PROPERTY COMPILE_DEFINITIONS
        UIC_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/data")
    if(arg_PLAIN_LITERALS)
        set_source_files_properties(tst_${class}.cpp TARGET_DIRECTORY ${program} PROPERTIES
            COMPILE_OPTIONS -UQT_NO_CAST_FROM_ASCII SKIP_PRECOMPILE_HEADERS ON)
    endif()
    set_property(GLOBAL PROPERTY UIC_PROGRAM_${arg_NAME} ${program})
    # Not with -silent: it keeps back the warnings that the expression below looks for.
    add_test(NAME ${arg_NAME} COMMAND ${arg_LAUNCHER} $<TARGET_FILE:${program}> ${class})
    set_tests_properties(${arg_NAME} PROPERTIES
        LABELS ${arg_LABEL} TIMEOUT 300
        FAIL_REGULAR_EXPRESSION "QWARN|QCRITICAL|QSYSTEM|runtime error:"
        ENVIRONMENT "${arg_ENVIRONMENT}")
endfunction()

# uic_unit_test(<Class> LINK <target...> [SOURCES <file...>]): tests/unit/.../<Library>/tst_<Class>.cpp, run off
# screen. The program has the name of the first folder: "UiComponents", "platform"; for internal code it is
# "<Library>Internals".
function(uic_unit_test class)
    file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}/tests/unit" "${CMAKE_CURRENT_SOURCE_DIR}")
    string(REGEX REPLACE "/.*" "" program "${folder}")
    get_filename_component(library "${folder}" NAME)
    if("${ARGN}" MATCHES "Testable")
        set(program ${library}Internals)
    endif()
    uic_test(${class} PROGRAM ${program} NAME unit.${library}.${class} LABEL unit
        ENVIRONMENT ${UIC_UNIT_ENVIRONMENT} ${ARGN})
endfunction()

set(UIC_DESKTOP_SESSION "${PROJECT_SOURCE_DIR}/tests/desktop/desktop-session")

# uic_desktop_test(<Class> LINK <target...> [SESSION <option...>]): tests/desktop/tst_<Class>.cpp, run on a desktop
# of its own. See RealInput.h for the input, and desktop-session for its options.
function(uic_desktop_test class)
    cmake_parse_arguments(arg "" "" "SESSION;LINK" ${ARGN})
    set(program desktop)
    if("${ARGN}" MATCHES "Testable")
        set(program desktopInternals)
    endif()
    uic_test(${class} PROGRAM ${program} NAME desktop.${class} LABEL desktop
        LAUNCHER ${UIC_DESKTOP_SESSION} ${arg_SESSION} ENVIRONMENT ${UIC_DESKTOP_ENVIRONMENT}
        LINK ${arg_LINK} ${arg_UNPARSED_ARGUMENTS})
endfunction()

# uic_desktop_variant(<Class> <name> [SESSION <option...>] [ENVIRONMENT <variable...>] [ARGUMENTS <function...>]):
# runs a desktop test, or these functions of it, once more, in a session of these options and with these variables.
function(uic_desktop_variant class name)
    cmake_parse_arguments(arg "" "" "SESSION;ENVIRONMENT;ARGUMENTS" ${ARGN})
    set(test desktop.${class}.${name})
    get_property(program GLOBAL PROPERTY UIC_PROGRAM_desktop.${class})
    add_test(NAME ${test} COMMAND ${UIC_DESKTOP_SESSION} ${arg_SESSION} $<TARGET_FILE:${program}> ${class}
        ${arg_ARGUMENTS})
    foreach(property LABELS TIMEOUT FAIL_REGULAR_EXPRESSION)
        get_test_property(desktop.${class} ${property} value)
        set_tests_properties(${test} PROPERTIES ${property} "${value}")
    endforeach()
    set_property(TEST ${test} PROPERTY ENVIRONMENT ${UIC_DESKTOP_ENVIRONMENT} ${arg_ENVIRONMENT})
endfunction()

file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/runtime")
file(CHMOD "${CMAKE_BINARY_DIR}/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
# The off-screen platform has no OpenGL.
set(UIC_UNIT_ENVIRONMENT QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software LC_ALL=C.UTF-8 LANGUAGE=
    XDG_RUNTIME_DIR=${CMAKE_BINARY_DIR}/runtime)
if(UICOMPONENTS_SANITIZE)
    list(APPEND UIC_UNIT_ENVIRONMENT
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0"
        "ASAN_OPTIONS=detect_stack_use_after_return=1" "UBSAN_OPTIONS=print_stacktrace=1")
endif()

# An X server answers late: Qt's platform plugin logs the answers about windows that are gone by then.
set(UIC_DESKTOP_ENVIRONMENT ${UIC_UNIT_ENVIRONMENT} QT_LOGGING_RULES=qt.qpa.xcb.warning=false
    "UIC_SCREENSHOTS=${PROJECT_BINARY_DIR}/screenshots")
list(FILTER UIC_DESKTOP_ENVIRONMENT EXCLUDE REGEX "^(QT_QPA_PLATFORM|QT_QUICK_BACKEND|XDG_RUNTIME_DIR)=")
# The platform plugin for X leaks a little when it is unloaded. The unit tests look for leaks of ours.
list(TRANSFORM UIC_DESKTOP_ENVIRONMENT REPLACE "^ASAN_OPTIONS=" "ASAN_OPTIONS=detect_leaks=0:")
