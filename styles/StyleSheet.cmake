# uic_style_sheet(<output> TITLE <text> PALETTE <file> PARTS <template...>)
#
# Joins the templates and fills the colours in: "@name@" stands for the colour that the palette's line
# "name #rrggbb" gives. A name without a colour, and a colour that no template uses, stop the configuration,
# so that the palettes of one design cannot drift apart.
function(uic_style_sheet output)
    cmake_parse_arguments(arg "" "TITLE;PALETTE" "PARTS" ${ARGN})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${arg_PALETTE}" ${arg_PARTS})

    set(sheet "")
    foreach(part IN LISTS arg_PARTS)
        file(READ "${part}" text)
        string(APPEND sheet "${text}")
    endforeach()
    string(REPLACE "@title@" "${arg_TITLE}" sheet "${sheet}")

    file(STRINGS "${arg_PALETTE}" lines REGEX "^[A-Za-z]+ +#")
    foreach(line IN LISTS lines)
        string(REGEX MATCH "^([A-Za-z]+) +(#[0-9a-f]+)$" matched "${line}")
        if(NOT matched)
            message(FATAL_ERROR "${arg_PALETTE}: \"${line}\" is not a name and a colour")
        endif()
        string(FIND "${sheet}" "@${CMAKE_MATCH_1}@" position)
        if(position EQUAL -1)
            message(FATAL_ERROR "${arg_PALETTE}: nothing uses \"${CMAKE_MATCH_1}\"")
        endif()
        string(REPLACE "@${CMAKE_MATCH_1}@" "${CMAKE_MATCH_2}" sheet "${sheet}")
    endforeach()
    string(REGEX MATCH "@[A-Za-z]+@" left "${sheet}")
    if(left)
        message(FATAL_ERROR "${arg_PALETTE} has no colour for ${left}")
    endif()
    file(CONFIGURE OUTPUT "${output}" CONTENT "${sheet}" @ONLY)
endfunction()
