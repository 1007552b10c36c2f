# What a build for Windows from another system needs beside the toolchain: see packaging/windows.
set(ZEVLIN_CARD_FILES "" CACHE PATH "Picture, layouts and sample cards, made by a build for this system")
if(NOT EXISTS ${ZEVLIN_CARD_FILES}/full.bin)
  message(FATAL_ERROR "ZEVLIN_CARD_FILES must name the folder of a finished build's card files")
endif()

# The tool that prints the card runs where the build runs.
file(GLOB card_files CONFIGURE_DEPENDS ${ZEVLIN_CARD_FILES}/*)
set(card_copies ${card_files})
list(TRANSFORM card_copies REPLACE "^.*/" "${CMAKE_BINARY_DIR}/card/")
add_custom_command(OUTPUT ${card_copies}
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${card_files} ${CMAKE_BINARY_DIR}/card
  COMMAND ${CMAKE_COMMAND} -E touch ${card_copies}
  DEPENDS ${card_files} VERBATIM)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/card)
add_custom_target(card_files DEPENDS ${card_copies})

# The test library in source form, as there is no build of it for Windows.
if(ZEVLIN_TESTS)
  set(INSTALL_GTEST OFF)
  set(BUILD_GMOCK OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)
endif()

# A static library of Qt leaves its plugins out unless the program names them.
add_library(qt_plugins OBJECT ${CMAKE_SOURCE_DIR}/packaging/windows/plugins.cpp)
target_link_libraries(qt_plugins PRIVATE Qt6::Core)
function(zevlin_take_plugins library)
  target_link_libraries(${library} INTERFACE $<TARGET_OBJECTS:qt_plugins>
    $<LINK_ONLY:Qt6::QWindowsIntegrationPlugin> $<LINK_ONLY:Qt6::QOffscreenIntegrationPlugin>
    $<LINK_ONLY:Qt6::QWindowsVistaStylePlugin> $<LINK_ONLY:Qt6::QJpegPlugin>
    $<LINK_ONLY:Qt6::QGifPlugin>)
endfunction()

# zevlin_windows_program(<target>): icon, version and manifest.
function(zevlin_windows_program target)
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/zevlin.manifest.in
                 ${CMAKE_BINARY_DIR}/generated/zevlin.manifest @ONLY)
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/zevlin.rc.in
                 ${CMAKE_BINARY_DIR}/generated/zevlin.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_BINARY_DIR}/generated/zevlin.rc)
  set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
  target_link_options(${target} PRIVATE -s)
endfunction()
