# uic_style_sheet(<output> TEMPLATE <file> TITLE <text> PALETTE <file> [PARTIAL])
#
# Fills a template with colours: "@name@" stands for the colour that the palette's line "name #rrggbb" gives.
# A name without a colour stops the configuration, and so does a colour that the template does not use,
# unless it is a PARTIAL one: the palettes of one design cannot drift apart.
function(uic_style_sheet output)
    cmake_parse_arguments(arg "PARTIAL" "TEMPLATE;TITLE;PALETTE" "" ${ARGN})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${arg_PALETTE}" "${arg_TEMPLATE}")

    file(READ "${arg_TEMPLATE}" sheet)
    string(REPLACE "@title@" "${arg_TITLE}" sheet "${sheet}")

    file(STRINGS "${arg_PALETTE}" lines REGEX "^[A-Za-z]+ +#")
    foreach(line IN LISTS lines)
        string(REGEX MATCH "^([A-Za-z]+) +(#[0-9a-f]+)$" matched "${line}")
        if(NOT matched)
            message(FATAL_ERROR "${arg_PALETTE}: \"${line}\" is not a name and a colour")
        endif()
        string(FIND "${sheet}" "@${CMAKE_MATCH_1}@" position)
        if(position EQUAL -1 AND NOT arg_PARTIAL)
            message(FATAL_ERROR "${arg_PALETTE}: nothing uses \"${CMAKE_MATCH_1}\"")
        endif()
        string(REPLACE "@${CMAKE_MATCH_1}@" "${CMAKE_MATCH_2}" sheet "${sheet}")
    endforeach()
    string(REGEX MATCH "@[A-Za-z]+@" left "${sheet}")
    if(left)
        message(FATAL_ERROR "${arg_PALETTE} has no colour for ${left}")
    endif()
    # A new time would have all that contains the sheet built anew.
    set(present)
    if(EXISTS "${output}")
        file(READ "${output}" present)
    endif()
    if(NOT "${present}" STREQUAL "${sheet}")
        file(WRITE "${output}" "${sheet}")
    endif()
endfunction()
