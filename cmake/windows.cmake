# What a build for Windows from another system needs beside the toolchain: see packaging/windows.

# The test library in source form, as there is no build of it for Windows.
if(ZEVLIN_TESTS)
  set(INSTALL_GTEST OFF)
  set(BUILD_GMOCK OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)
endif()

# The library of the command line is made of headers only. They lie among the host's own, which no
# source may see.
file(COPY /usr/include/CLI DESTINATION ${CMAKE_BINARY_DIR}/cli11)
add_library(CLI11::CLI11 INTERFACE IMPORTED)
target_include_directories(CLI11::CLI11 INTERFACE ${CMAKE_BINARY_DIR}/cli11)

# A static library of Qt leaves its plugins out unless the program names them.
add_library(qt_plugins OBJECT ${CMAKE_SOURCE_DIR}/packaging/windows/plugins.cpp)
target_link_libraries(qt_plugins PRIVATE Qt6::Core)
function(zevlin_take_plugins library)
  target_link_libraries(${library} INTERFACE $<TARGET_OBJECTS:qt_plugins>
    $<LINK_ONLY:Qt6::QWindowsIntegrationPlugin> $<LINK_ONLY:Qt6::QOffscreenIntegrationPlugin>
    $<LINK_ONLY:Qt6::QWindowsVistaStylePlugin> $<LINK_ONLY:Qt6::QJpegPlugin>
    $<LINK_ONLY:Qt6::QGifPlugin>)
endfunction()

# zevlin_windows_resources(<target> <name>): icon, version and manifest of <name>.exe.
function(zevlin_windows_resources target windows_name)
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/zevlin.manifest.in
                 ${CMAKE_BINARY_DIR}/generated/zevlin.manifest @ONLY)
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/zevlin.rc.in
                 ${CMAKE_BINARY_DIR}/generated/${windows_name}.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_BINARY_DIR}/generated/${windows_name}.rc)
  target_link_options(${target} PRIVATE -s)
endfunction()

# zevlin_windows_program(<target>): with windows of its own.
function(zevlin_windows_program target)
  zevlin_windows_resources(${target} zevlin)
  set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
endfunction()

# zevlin_windows_command(<target>): for the console.
function(zevlin_windows_command target)
  zevlin_windows_resources(${target} zevlin-cards)
  target_link_libraries(${target} PRIVATE shell32)
endfunction()
