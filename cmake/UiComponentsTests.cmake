# uic_unit_test(<Class> LINK <target...>): tests/unit/<Library>/tst_<Class>.cpp, run off screen.
#
# A warning that the test did not announce with QTest::ignoreMessage() fails it.
function(uic_unit_test class)
    cmake_parse_arguments(arg "" "" "LINK;SOURCES" ${ARGN})
    get_filename_component(library "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
    set(target tst_${class})
    add_executable(${target} tst_${class}.cpp ${arg_SOURCES})
    target_link_libraries(${target} PRIVATE
        ${arg_LINK} UiComponentsTestSupport Qt5::Test UiComponentsBuildOptions)
    target_compile_definitions(${target} PRIVATE
        UIC_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/data")
    add_test(NAME unit.${library}.${class} COMMAND ${target} -silent)
    set_tests_properties(unit.${library}.${class} PROPERTIES
        LABELS unit TIMEOUT 300
        FAIL_REGULAR_EXPRESSION "QWARN|QCRITICAL|QSYSTEM|runtime error:"
        ENVIRONMENT "${UIC_UNIT_ENVIRONMENT}")
endfunction()

file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/runtime")
file(CHMOD "${CMAKE_BINARY_DIR}/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
set(UIC_UNIT_ENVIRONMENT QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 LANGUAGE=
    XDG_RUNTIME_DIR=${CMAKE_BINARY_DIR}/runtime)
if(UICOMPONENTS_SANITIZE)
    list(APPEND UIC_UNIT_ENVIRONMENT
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0"
        "ASAN_OPTIONS=detect_stack_use_after_return=1" "UBSAN_OPTIONS=print_stacktrace=1")
endif()
