# One helper a kind of target, so that a folder's CMakeLists.txt is one line.

set(TAVRIN_WARNINGS -Wall -Wextra -Wpedantic)

# tavrin_library(NAME BELOW...): the folder's sources as one library that may include what stands below it and no more.
function(tavrin_library name)
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    add_library(${name} STATIC ${sources})
    target_compile_options(${name} PRIVATE ${TAVRIN_WARNINGS})
    # Project headers are named from src/, so an include shows its floor.
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ARGN})
    tavrin_precompiled(${name})
endfunction()

# All targets share one set of precompiled Qt headers: it halves the time of a build.
function(tavrin_precompiled name)
    target_link_libraries(${name} PRIVATE Qt6::Widgets)
    target_precompile_headers(${name} REUSE_FROM tavrin_pch)
endfunction()

# tavrin_test(FOLDER LIBRARIES...): one test program for each folder under tests/, registered case by case.
function(tavrin_test folder)
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    set(name test_${folder})
    add_executable(${name} ${sources})
    target_compile_options(${name} PRIVATE ${TAVRIN_WARNINGS})
    target_link_libraries(${name} PRIVATE test_support ${ARGN})
    target_compile_definitions(${name} PRIVATE GOLDEN_FOLDER="${CMAKE_CURRENT_SOURCE_DIR}/${folder}/golden")
    tavrin_precompiled(${name})
    add_test(NAME ${folder} COMMAND ${name})
    set_tests_properties(${folder} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8"
        TIMEOUT 600)
endfunction()
