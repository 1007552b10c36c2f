# The compile flags that every target of the project shares.
add_library(zevlin_flags INTERFACE)
target_compile_options(zevlin_flags INTERFACE -Wall -Wextra -Wconversion
  # Where some sources are compiled as one, a private name of the one may be a local name of the other.
  $<$<NOT:$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wshadow>)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # gcc 12 sees overlaps in std::string that aren't there.
  target_compile_options(zevlin_flags INTERFACE -Wno-restrict)
else()
  # gcc's library calls functions of its own that newer clangs find deprecated; gcc tells of ours.
  target_compile_options(zevlin_flags INTERFACE -Wno-deprecated-declarations)
endif()

if(ZEVLIN_SANITIZE)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # With the sanitizers' checks in between, gcc 12 loses sight of what std::regex initialises.
    add_compile_options(-Wno-maybe-uninitialized)
  elseif(ZEVLIN_SANITIZE MATCHES address)
    # As gcc: watching what a function leaves on the stack makes the tests a tenth slower.
    add_compile_options(-fsanitize-address-use-after-return=never)
  endif()
  add_compile_options(-fsanitize=${ZEVLIN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${ZEVLIN_SANITIZE})
endif()
if(ZEVLIN_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
