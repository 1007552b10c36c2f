# The card's files as another build has made them: the tool that prints the card runs where it was
# built, and takes its time under a sanitizer.
if(NOT EXISTS ${ZEVLIN_CARD_FILES}/full.bin)
  message(FATAL_ERROR "ZEVLIN_CARD_FILES must name the folder of a finished build's card files")
endif()

file(GLOB card_files CONFIGURE_DEPENDS ${ZEVLIN_CARD_FILES}/*)
set(card_copies ${card_files})
list(TRANSFORM card_copies REPLACE "^.*/" "${CMAKE_BINARY_DIR}/card/")
add_custom_command(OUTPUT ${card_copies}
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${card_files} ${CMAKE_BINARY_DIR}/card
  COMMAND ${CMAKE_COMMAND} -E touch ${card_copies}
  DEPENDS ${card_files} VERBATIM)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/card)
add_custom_target(card_files DEPENDS ${card_copies})
