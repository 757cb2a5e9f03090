# What a client's programmers and deployers get; tools/package.sh makes a zip of it.
include(CMakePackageConfigHelpers)

write_basic_package_version_file("${CMAKE_BINARY_DIR}/ZorvaneConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES cmake/ZorvaneConfig.cmake "${CMAKE_BINARY_DIR}/ZorvaneConfigVersion.cmake"
  DESTINATION lib/cmake/Zorvane)

# All that lies beside a client's program and is the module's own.
install(FILES $<TARGET_FILE:Zorvane> $<TARGET_FILE:IniWarden> DESTINATION bin)
install(DIRECTORY "${ZORVANE_BIN_DIR}/skin" host/files/Sys DESTINATION bin)

install(DIRECTORY include/zorvane DESTINATION include)
install(FILES $<TARGET_LINKER_FILE:Zorvane> DESTINATION lib)
if(NOT MSVC)
  install(FILES "${ZORVANE_BIN_DIR}/Zorvane.lib" DESTINATION lib)
endif()

# Files that the module shares with the client: samples, for the client has its own.
install(DIRECTORY host/files/cfg DESTINATION samples)

install(FILES docs/for-programmers.md docs/for-deployers.md docs/keys.md DESTINATION docs)
install(DIRECTORY docs/example DESTINATION docs)
