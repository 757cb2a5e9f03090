# The templates, for the module and for tests of single pages.
add_library(zorvane_resources OBJECT resources/zorvane.rc)
target_link_libraries(zorvane_resources PRIVATE mfc_dll)
target_include_directories(zorvane_resources PRIVATE
  "${CMAKE_SOURCE_DIR}" "${CMAKE_BINARY_DIR}/generated")
file(GLOB resource_parts CONFIGURE_DEPENDS resources/*.rc resources/*.h)
set_property(SOURCE resources/zorvane.rc APPEND PROPERTY OBJECT_DEPENDS
  "${resource_parts}" "${CMAKE_BINARY_DIR}/generated/version.h")

# Zorvane.dll with its import libraries for both name styles.
add_library(Zorvane SHARED
  core/ZorvaneApp.cpp
  core/ZorvaneInterface.cpp
)
target_compile_definitions(Zorvane PRIVATE ZORVANE_BUILDING)
target_link_libraries(Zorvane PRIVATE frame hotkeys mfc_dll zorvane_resources)
target_include_directories(Zorvane INTERFACE "${CMAKE_SOURCE_DIR}/include")
set_target_properties(Zorvane PROPERTIES
  PREFIX ""
  RUNTIME_OUTPUT_DIRECTORY "${ZORVANE_BIN_DIR}"
  ARCHIVE_OUTPUT_DIRECTORY "${ZORVANE_BIN_DIR}")

if(NOT MSVC)
  target_sources(Zorvane PRIVATE core/VisualCppClass.cpp core/Zorvane.def)
  target_link_options(Zorvane PRIVATE -s)

  # Visual C++ hosts link against a library of the decorated names, without what they stand for.
  file(READ core/Zorvane.def definitions)
  string(REGEX REPLACE " = [^ \n]+" "" definitions "${definitions}")
  file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/ZorvaneVisualCpp.def" CONTENT "${definitions}")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS core/Zorvane.def)
  find_program(LLVM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14 REQUIRED)
  add_custom_command(OUTPUT "${ZORVANE_BIN_DIR}/Zorvane.lib"
    COMMAND "${LLVM_DLLTOOL}" -m i386 -d "${CMAKE_BINARY_DIR}/ZorvaneVisualCpp.def"
            -l "${ZORVANE_BIN_DIR}/Zorvane.lib"
    DEPENDS "${CMAKE_BINARY_DIR}/ZorvaneVisualCpp.def")
  add_custom_target(zorvane_visual_cpp_library ALL DEPENDS "${ZORVANE_BIN_DIR}/Zorvane.lib")
endif()
