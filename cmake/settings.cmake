# Makes form/settings.h, the header with what the build decides.
if(ZEVLIN_PRODUCTION)
  set(ZEVLIN_PRODUCTION_LITERAL true)
else()
  set(ZEVLIN_PRODUCTION_LITERAL false)
endif()
set(ZEVLIN_GENERATED_DIR ${CMAKE_BINARY_DIR}/generated)
configure_file(${CMAKE_SOURCE_DIR}/src/form/settings.h.in ${ZEVLIN_GENERATED_DIR}/form/settings.h @ONLY)
