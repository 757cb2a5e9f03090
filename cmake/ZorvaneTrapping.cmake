# The module once more, built to trap on undefined behaviour. Not on calls on null: the framework
# documents some that may be.

# zorvane_trapping_module(folder): target trapping_module, put into the folder with the skin and what
# else it needs.
function(zorvane_trapping_module folder)
  set(sources)
  foreach(library core core_files core_pure hotkeys hotkeys_pure key_pages skin skin_pure scroll
      scroll_pure grid grid_pure frame_host page_base pages pages_pure frame)
    get_target_property(names ${library} SOURCES)
    get_target_property(source_folder ${library} SOURCE_DIR)
    list(TRANSFORM names PREPEND "${source_folder}/")
    list(APPEND sources ${names})
  endforeach()
  foreach(name ZorvaneApp.cpp ZorvaneInterface.cpp VisualCppClass.cpp Zorvane.def)
    list(APPEND sources "${CMAKE_SOURCE_DIR}/core/${name}")
  endforeach()

  add_library(trapping_module SHARED ${sources})
  target_compile_definitions(trapping_module PRIVATE ZORVANE_BUILDING)
  target_compile_options(trapping_module PRIVATE -O1
    -fsanitize=undefined -fsanitize-undefined-trap-on-error -fno-sanitize=null,vptr)
  target_link_libraries(trapping_module PRIVATE
    zorvane_flags IniWarden mfc_dll zorvane_resources comdlg32 oleacc ole32 oleaut32 uxtheme)
  target_precompile_headers(trapping_module PRIVATE <afxwin.h>)
  set_target_properties(trapping_module PROPERTIES
    OUTPUT_NAME Zorvane PREFIX "" RUNTIME_OUTPUT_DIRECTORY "${folder}"
    ARCHIVE_OUTPUT_DIRECTORY "${folder}")
  add_dependencies(trapping_module skin_art)
  add_custom_command(TARGET trapping_module POST_BUILD
    COMMAND "${CMAKE_COMMAND}" -E copy_directory "${ZORVANE_BIN_DIR}/skin" "${folder}/skin"
    COMMAND "${CMAKE_COMMAND}" -E copy "$<TARGET_FILE:IniWarden>" "${folder}")
endfunction()
