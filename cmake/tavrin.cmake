# One helper for each kind of target, so that a folder's CMakeLists.txt is a line or two.

set(TAVRIN_WARNINGS -Wall -Wextra -Wpedantic -Wshadow)

# tavrin_sources(VARIABLE FOLDER): the sources of the folder. Their list is also written to a file that the configuration
# depends on: otherwise a class in a new header would be compiled, but get no meta object until the next change here.
function(tavrin_sources variable folder)
    cmake_path(ABSOLUTE_PATH folder NORMALIZE)
    cmake_path(GET folder FILENAME name)
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${name}-sources.txt)
    file(CONFIGURE OUTPUT ${list} CONTENT "${sources}" @ONLY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list})
    set(${variable} ${sources} PARENT_SCOPE)
endfunction()

# tavrin_room(ROOM [ON ROOM...] [LINKS LIBRARY...] [SCREENLESS NAME...]): the folder's sources as the library ROOM. It may
# include its own headers and those of the rooms that it stands on, and nothing else: no other folder is on its path.
# SCREENLESS names the sources that compute, read or write text. They are compiled as ROOM_logic, out of sight of every
# widget. A room that links no windows is one such library as a whole.
function(tavrin_room room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "ON;LINKS;SCREENLESS")
    tavrin_sources(sources ${CMAKE_CURRENT_SOURCE_DIR})
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    # Headers are included as "room/header.h" through a folder that holds this one room.
    set(include_folder ${PROJECT_BINARY_DIR}/rooms/${room})
    file(MAKE_DIRECTORY ${include_folder})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_folder}/${room} SYMBOLIC)
    # What a screenless source of this room may stand on: the rooms without windows below it, at any depth.
    set(windows FALSE)
    foreach(below ${arg_ON})
        get_property(below_windows GLOBAL PROPERTY tavrin_windows_${below})
        get_property(below_screenless GLOBAL PROPERTY tavrin_screenless_${below})
        list(APPEND screenless ${below_screenless})
        if(below_windows)
            set(windows TRUE)
        endif()
    endforeach()
    if(arg_LINKS MATCHES "Qt6::(Widgets|PrintSupport|Svg)")
        set(windows TRUE)
    endif()
    list(REMOVE_DUPLICATES screenless)
    set(offered ${screenless})
    if(NOT windows)
        list(APPEND offered ${room})
    elseif(arg_SCREENLESS)
        list(APPEND offered ${room}_logic)
    endif()
    set_property(GLOBAL PROPERTY tavrin_windows_${room} ${windows})
    set_property(GLOBAL PROPERTY tavrin_screenless_${room} ${offered})

    if(arg_SCREENLESS)
        foreach(name ${arg_SCREENLESS})
            set(logic ${sources})
            list(FILTER logic INCLUDE REGEX "/${name}\\.(cpp|h)$")
            if(NOT logic)
                message(FATAL_ERROR "${room} has no source ${name}")
            endif()
            list(REMOVE_ITEM sources ${logic})
            list(APPEND logic_sources ${logic})
        endforeach()
        add_library(${room}_logic STATIC ${logic_sources})
        target_include_directories(${room}_logic PUBLIC ${include_folder})
        target_link_libraries(${room}_logic PUBLIC ${screenless})
        tavrin_compiled(${room}_logic core)
        list(APPEND arg_LINKS ${room}_logic)
    endif()

    add_library(${room} STATIC ${sources})
    target_include_directories(${room} PUBLIC ${include_folder})
    target_link_libraries(${room} PUBLIC ${arg_ON} ${arg_LINKS})
    if(windows)
        tavrin_compiled(${room} windows)
    else()
        tavrin_compiled(${room} core)
    endif()
endfunction()

# tavrin_compiled(TARGET SET): warnings, and one of the sets of precompiled Qt headers, which halve the time of a build:
# core for what has no windows, windows, or tests, where a bare literal may stand for a text.
function(tavrin_compiled target set)
    target_compile_options(${target} PRIVATE ${TAVRIN_WARNINGS})
    if(set STREQUAL "core")
        target_link_libraries(${target} PRIVATE Qt6::Core)
    else()
        target_link_libraries(${target} PRIVATE Qt6::Widgets)
    endif()
    if(NOT set STREQUAL "tests")
        target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII)
    endif()
    target_precompile_headers(${target} REUSE_FROM tavrin_pch_${set})
endfunction()

# tavrin_test(FOLDER LIBRARIES...): one test program for each folder under tests/.
function(tavrin_test folder)
    tavrin_sources(sources ${folder})
    set(name test_${folder})
    add_executable(${name} ${sources})
    target_link_libraries(${name} PRIVATE test_support ${ARGN})
    tavrin_compiled(${name} tests)
    add_test(NAME ${folder} COMMAND ${name})
    set_tests_properties(${folder} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TAVRIN_STATEMENTS=${TAVRIN_STATEMENTS}/${folder}.txt"
        TIMEOUT 600)
endfunction()
