# zevlin_room(<folder> [PLAIN <sources>] [FORM <sources>])
#
# One folder of src/ as up to two static libraries: zevlin_<folder>_plain holds the logic that knows
# neither the form nor a window, zevlin_<folder>_form the procedures over the form. Neither sees Qt.
function(zevlin_room folder)
  cmake_parse_arguments(room "" "" "PLAIN;FORM" ${ARGN})
  foreach(part PLAIN FORM)
    if(room_${part})
      string(TOLOWER ${part} suffix)
      set(library zevlin_${folder}_${suffix})
      add_library(${library} STATIC ${room_${part}})
      target_include_directories(${library} PUBLIC ${CMAKE_SOURCE_DIR}/src ${ZEVLIN_GENERATED_DIR})
      target_link_libraries(${library} PRIVATE zevlin_flags)
    endif()
  endforeach()
endfunction()
