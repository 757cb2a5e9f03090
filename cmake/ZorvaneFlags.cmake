# One interface target carries every compiler flag of the product.
add_library(zorvane_flags INTERFACE)
target_include_directories(zorvane_flags INTERFACE
  "${CMAKE_SOURCE_DIR}" "${CMAKE_SOURCE_DIR}/include")

if(MSVC)
  # Sources are UTF-8; the A functions need narrow texts in code page 936.
  target_compile_options(zorvane_flags INTERFACE
    /W4 /source-charset:utf-8 /execution-charset:.936)
  target_compile_definitions(zorvane_flags INTERFACE _CRT_SECURE_NO_WARNINGS)
else()
  target_compile_options(zorvane_flags INTERFACE -Wall -Wextra -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(zorvane_flags INTERFACE -finput-charset=UTF-8 -fexec-charset=GBK)
  endif()
  target_compile_definitions(zorvane_flags INTERFACE _GLIBCXX_ASSERTIONS)
endif()

if(WIN32)
  target_compile_definitions(zorvane_flags INTERFACE
    WINVER=0x0601 _WIN32_WINNT=0x0601 NOMINMAX)
endif()

if(WIN32 AND NOT MSVC)
  # Callers built by Visual C++ align the stack to 4 bytes only: hence -mstackrealign.
  target_compile_options(zorvane_flags INTERFACE -mstackrealign -fstack-protector-strong)
  target_link_options(zorvane_flags INTERFACE -static)
  add_library(stack_guard STATIC cmake/StackGuard.cpp)
  target_compile_options(stack_guard PRIVATE -Wall -Wextra -Werror)
  target_link_libraries(zorvane_flags INTERFACE stack_guard)
elseif(NOT WIN32)
  target_compile_options(zorvane_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(zorvane_flags INTERFACE -fsanitize=address,undefined)
endif()

if(ZORVANE_FUZZ)
  target_compile_options(zorvane_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# A static library of ours with the common flags: zorvane_library(name sources...)
function(zorvane_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC zorvane_flags)
endfunction()
