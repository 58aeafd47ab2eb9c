# uic_test_program(<Class> NAME <test> LABEL <label> LINK <target...> [SOURCES <file...>]
#     [LAUNCHER <command...>] ENVIRONMENT <variable...>): tst_<Class>.cpp of this folder, run as one test.
#
# A warning that the test did not announce with QTest::ignoreMessage() fails it.
function(uic_test_program class)
    cmake_parse_arguments(arg "" "NAME;LABEL" "LINK;SOURCES;LAUNCHER;ENVIRONMENT" ${ARGN})
    set(target tst_${class})
    add_executable(${target} tst_${class}.cpp ${arg_SOURCES})
    target_link_libraries(${target} PRIVATE
        ${arg_LINK} UiComponentsTestSupport Qt5::Test UiComponentsBuildOptions)
    target_compile_definitions(${target} PRIVATE
        UIC_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/data")
    # Not with -silent: it keeps back the warnings that the expression below looks for.
    add_test(NAME ${arg_NAME} COMMAND ${arg_LAUNCHER} $<TARGET_FILE:${target}>)
    set_tests_properties(${arg_NAME} PROPERTIES
        LABELS ${arg_LABEL} TIMEOUT 300
        FAIL_REGULAR_EXPRESSION "QWARN|QCRITICAL|QSYSTEM|runtime error:"
        ENVIRONMENT "${arg_ENVIRONMENT}")
endfunction()

# uic_unit_test(<Class> LINK <target...>): tests/unit/<Library>/tst_<Class>.cpp, run off screen.
function(uic_unit_test class)
    get_filename_component(library "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
    uic_test_program(${class} NAME unit.${library}.${class} LABEL unit
        ENVIRONMENT ${UIC_UNIT_ENVIRONMENT} ${ARGN})
endfunction()

set(UIC_DESKTOP_SESSION "${PROJECT_SOURCE_DIR}/tests/desktop/desktop-session")

# uic_desktop_test(<Class> LINK <target...> [SCREENS <layout>]): tests/desktop/tst_<Class>.cpp, run on a desktop
# of its own with a window manager and a compositor. See RealInput.h; desktop-session describes the layout.
function(uic_desktop_test class)
    cmake_parse_arguments(arg "" "SCREENS" "" ${ARGN})
    set(launcher "${UIC_DESKTOP_SESSION}")
    if(arg_SCREENS)
        list(APPEND launcher --screens "${arg_SCREENS}")
    endif()
    uic_test_program(${class} NAME desktop.${class} LABEL desktop
        LAUNCHER ${launcher} ENVIRONMENT ${UIC_DESKTOP_ENVIRONMENT} ${arg_UNPARSED_ARGUMENTS})
    # Two desktops at once on a small machine only wait for each other, where the tests leave them time to.
    set_tests_properties(desktop.${class} PROPERTIES PROCESSORS 2)
endfunction()

# uic_desktop_variant(<Class> <name> [SCREENS <layout>] [ENVIRONMENT <variable...>] [ARGUMENTS <function...>]):
# runs a desktop test, or these functions of it, once more, on the screens that desktop-session describes, and
# with these variables.
function(uic_desktop_variant class name)
    cmake_parse_arguments(arg "" "SCREENS" "ENVIRONMENT;ARGUMENTS" ${ARGN})
    set(test desktop.${class}.${name})
    set(launcher "${UIC_DESKTOP_SESSION}")
    if(arg_SCREENS)
        list(APPEND launcher --screens "${arg_SCREENS}")
    endif()
    add_test(NAME ${test} COMMAND ${launcher} $<TARGET_FILE:tst_${class}> ${arg_ARGUMENTS})
    foreach(property LABELS TIMEOUT FAIL_REGULAR_EXPRESSION PROCESSORS)
        get_test_property(desktop.${class} ${property} value)
        set_tests_properties(${test} PROPERTIES ${property} "${value}")
    endforeach()
    # A QT_SCREEN_SCALE_FACTORS has several values: its semicolons stay.
    set(environment ${UIC_DESKTOP_ENVIRONMENT} ${arg_ENVIRONMENT})
    set_property(TEST ${test} PROPERTY ENVIRONMENT "${environment}")
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
