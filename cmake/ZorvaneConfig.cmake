# find_package(Zorvane) gives
#   Zorvane::Zorvane     the module; link it
#   Zorvane_RUNTIME_DIR  the folder of all that must lie beside the client's program
get_filename_component(_zorvane_root "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
set(Zorvane_RUNTIME_DIR "${_zorvane_root}/bin")

# The module exports the names of both compilers; each has its own import library.
if(MSVC OR CMAKE_CXX_SIMULATE_ID STREQUAL "MSVC")
  set(_zorvane_import_library Zorvane.lib)
else()
  set(_zorvane_import_library libZorvane.dll.a)
endif()

if(NOT TARGET Zorvane::Zorvane)
  add_library(Zorvane::Zorvane SHARED IMPORTED)
  set_target_properties(Zorvane::Zorvane PROPERTIES
    IMPORTED_LOCATION "${Zorvane_RUNTIME_DIR}/Zorvane.dll"
    IMPORTED_IMPLIB "${_zorvane_root}/lib/${_zorvane_import_library}"
    INTERFACE_INCLUDE_DIRECTORIES "${_zorvane_root}/include"
    INTERFACE_COMPILE_FEATURES cxx_std_11)
endif()

unset(_zorvane_root)
unset(_zorvane_import_library)
