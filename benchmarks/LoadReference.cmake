# Writes the source of a library that the loading of a real one is compared with:
#     cmake -D LIBRARY=... -D OUTPUT=... -D READELF=... [-D ALONE=ON] -P LoadReference.cmake
#
# The new library has as many bytes of constants as the real one has of code and constants, and exports
# nothing. It uses the same symbols of other libraries in the same way (called, or pointed to by a table,
# as vtables and meta-objects do), for no library of widgets can do without those of Qt. It has as many
# pointers to itself as the real one. Nothing of it has to be constructed. With ALONE it is the constants
# and nothing else.
cmake_minimum_required(VERSION 3.25)

function(readelf result)
    execute_process(COMMAND ${READELF} --wide ${ARGN} "${LIBRARY}"
        OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE ";" " " output "${output}")
    string(REPLACE "\n" ";" output "${output}")
    set(${result} "${output}" PARENT_SCOPE)
endfunction()

# What the library exports is its own affair: pointers to that are pointers to itself here.
set(exported)
readelf(symbols --dyn-syms)
foreach(line IN LISTS symbols)
    if(line MATCHES "^ *[0-9]+: +[0-9a-f]+ +[0-9]+ .* (UND|[0-9]+) ([^ @]+)" AND NOT CMAKE_MATCH_1 STREQUAL "UND")
        list(APPEND exported "${CMAKE_MATCH_2}")
    endif()
endforeach()

set(declared)
set(table)
set(calls)
readelf(relocations --relocs)
foreach(line IN LISTS relocations)
    if(line MATCHES "^[0-9a-f]+ +[0-9a-f]+ +R_[A-Z0-9_]+RELATIV")
        list(APPEND table "own")
        continue()
    endif()
    if(NOT line MATCHES "^[0-9a-f]+ +[0-9a-f]+ +R_([A-Z0-9_]+) +[0-9a-f]+ +([A-Za-z0-9_]+)(@| )")
        continue()
    endif()
    set(kind "${CMAKE_MATCH_1}")
    set(symbol "${CMAKE_MATCH_2}")
    if(symbol IN_LIST exported)
        if(NOT kind MATCHES "JUMP_SL|GLOB_DA")
            list(APPEND table "own")
        endif()
        continue()
    endif()
    if(symbol MATCHES "^(_ITM_|__gmon_start__|__cxa_finalize)")
        continue() # every library has these from the compiler's start files
    endif()
    list(APPEND declared "void ${symbol}()@")
    if(kind MATCHES "JUMP_SL")
        list(APPEND calls "    ${symbol}()@")
    else()
        list(APPEND table "${symbol}")
    endif()
endforeach()
list(REMOVE_DUPLICATES declared)

set(bytes 0)
readelf(sections --sections)
foreach(line IN LISTS sections)
    if(line MATCHES " \\.(text|rodata|eh_frame|gcc_except_table|eh_frame_hdr) +[A-Z_0-9]+ +[0-9a-f]+ [0-9a-f]+ ([0-9a-f]+) ")
        math(EXPR bytes "${bytes} + 0x${CMAKE_MATCH_2}")
    endif()
endforeach()

if(NOT declared OR NOT table OR NOT calls OR bytes EQUAL 0)
    message(FATAL_ERROR "Cannot read what ${LIBRARY} is made of")
endif()
foreach(list IN ITEMS declared calls)
    string(REPLACE ";" "\n" ${list} "${${list}}")
    string(REPLACE "@" ";" ${list} "${${list}}")
endforeach()
string(REPLACE ";" ",\n    " table "${table}")
if(ALONE)
    file(WRITE "${OUTPUT}" "__attribute__((used)) static const unsigned char constants[${bytes}] = {1};\n")
    return()
endif()
file(WRITE "${OUTPUT}" "extern \"C\" {
${declared}
}

__attribute__((used)) static const unsigned char constants[${bytes}] = {1};
__attribute__((used)) static void own() {}
__attribute__((used)) static void (*const table[])() = {
    ${table}};
__attribute__((used)) static void calls()
{
${calls}
}
")
