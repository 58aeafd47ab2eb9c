# With UICOMPONENTS_BUNDLED_PLATFORM=OFF: the Platform:: targets come from the host, which has made them
# before it adds this directory, or else from an installed package "Platform".

# Those of the targets that do not exist.
function(uic_missing_targets out)
    set(missing)
    foreach(target IN LISTS ARGN)
        if(NOT TARGET ${target})
            list(APPEND missing ${target})
        endif()
    endforeach()
    set(${out} "${missing}" PARENT_SCOPE)
endfunction()

# uic_require_platform(<target...>): takes care that the Platform:: targets among these exist.
function(uic_require_platform)
    set(needed ${ARGN})
    list(FILTER needed INCLUDE REGEX "^Platform::")
    uic_missing_targets(missing ${needed})
    # The package's targets and some of the host's do not mix: one name can only be one library.
    if(missing AND "${missing}" STREQUAL "${needed}")
        # For the other directories of the project, and of the host, too.
        if(CMAKE_VERSION VERSION_LESS 3.24)
            find_package(Platform ${PROJECT_VERSION} CONFIG QUIET)
            foreach(target IN LISTS Platform_TARGETS)
                set_target_properties(${target} PROPERTIES IMPORTED_GLOBAL TRUE)
            endforeach()
        else()
            find_package(Platform ${PROJECT_VERSION} CONFIG QUIET GLOBAL)
        endif()
        uic_missing_targets(missing ${needed})
    endif()
    if(missing)
        list(JOIN missing ", " missing)
        message(FATAL_ERROR "UICOMPONENTS_BUNDLED_PLATFORM is off and there is no target ${missing}. "
            "Define it before this directory is added, let CMAKE_PREFIX_PATH lead to an installed "
            "package \"Platform\", or switch UICOMPONENTS_BUNDLED_PLATFORM on.")
    endif()
endfunction()
