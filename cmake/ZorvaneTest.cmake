# Tests and fuzz targets. One ctest entry a program: a Wine start costs more than a test.

if(EXISTS /usr/src/googletest/CMakeLists.txt)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)
  if(NOT WIN32)
    foreach(library gtest gtest_main gmock gmock_main)
      target_compile_options(${library} PRIVATE -fsanitize=address,undefined)
    endforeach()
  endif()
else()
  find_package(GTest REQUIRED)
  foreach(library gtest gmock)
    add_library(${library} ALIAS GTest::${library})
  endforeach()
endif()

# zorvane_test(name SOURCES a.cpp ... [LIBRARIES lib ...] [ARGUMENTS arg ...] [TIMEOUT seconds])
# The program gets GoogleTest's main unless a source defines its own.
function(zorvane_test name)
  cmake_parse_arguments(T "OWN_MAIN" "TIMEOUT" "SOURCES;LIBRARIES;ARGUMENTS" ${ARGN})
  if(ZORVANE_FUZZ)
    return()
  endif()
  add_executable(${name} ${T_SOURCES})
  if(NOT T_OWN_MAIN)
    target_link_libraries(${name} PRIVATE gtest_main)
  endif()
  target_link_libraries(${name} PRIVATE zorvane_flags gmock gtest ${T_LIBRARIES})
  if(NOT T_TIMEOUT)
    set(T_TIMEOUT 120)
  endif()
  zorvane_quick_to_build(${name})
  add_test(NAME ${name} COMMAND ${name} ${T_ARGUMENTS})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${T_TIMEOUT})
endfunction()

# Test programs are built more often than their speed matters, and what they read most is the tests'
# library: it is precompiled once for all of them, so they are all built alike.
function(zorvane_quick_to_build name)
  zorvane_build_alike(${name})
  target_precompile_headers(${name} REUSE_FROM test_header)
endfunction()

function(zorvane_build_alike name)
  if(WIN32 AND NOT MSVC)
    target_compile_options(${name} PRIVATE
      -O1 $<TARGET_PROPERTY:mfc,INTERFACE_COMPILE_OPTIONS>)
  endif()
endfunction()

if(NOT ZORVANE_FUZZ)
  add_library(test_header OBJECT "${CMAKE_SOURCE_DIR}/cmake/PrecompiledHeader.cpp")
  target_link_libraries(test_header PRIVATE zorvane_flags gtest)
  target_precompile_headers(test_header PRIVATE <gtest/gtest.h>)
  zorvane_build_alike(test_header)
endif()

# zorvane_fuzz(name SOURCES a.cpp ... [LIBRARIES lib ...]): LLVMFuzzerTestOneInput in one of the
# sources. CI runs a bounded number of inputs from a fixed seed.
set(ZORVANE_FUZZ_RUNS 20000 CACHE STRING "Inputs a fuzz target gets in a test run")
function(zorvane_fuzz name)
  cmake_parse_arguments(T "" "" "SOURCES;LIBRARIES" ${ARGN})
  if(NOT ZORVANE_FUZZ)
    return()
  endif()
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE zorvane_flags ${T_LIBRARIES})
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  add_test(NAME ${name} COMMAND ${name} -runs=${ZORVANE_FUZZ_RUNS} -seed=1 -max_len=4096)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()

# Puts the finished module beside a program, with the skin: the module makes the program's folder
# the working directory and keeps its stores there.
function(zorvane_stage_module name)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/${name}.run")
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${folder}")
  zorvane_stage_into("${folder}" ${name}_stage)
  add_dependencies(${name} ${name}_stage)
endfunction()

function(zorvane_stage_into folder target)
  add_custom_command(OUTPUT "${folder}/Zorvane.dll"
    COMMAND "${CMAKE_COMMAND}" -E copy_directory "${ZORVANE_BIN_DIR}/skin" "${folder}/skin"
    COMMAND "${CMAKE_COMMAND}" -E copy "$<TARGET_FILE:Zorvane>" "$<TARGET_FILE:IniWarden>"
            "${folder}"
    DEPENDS Zorvane IniWarden skin_art)
  add_custom_target(${target} DEPENDS "${folder}/Zorvane.dll")
endfunction()
