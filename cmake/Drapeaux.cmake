# Compiler flags, stated once. Arithmetic is the same on every machine: no fast-math, no contraction of a*b+c.
add_library(velorin_drapeaux INTERFACE)
target_compile_options(velorin_drapeaux INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
                                                  -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # This compiler sees overlaps in joined strings that are not there.
  target_compile_options(velorin_drapeaux INTERFACE -Wno-restrict)
endif()
if(VELORIN_AVERTISSEMENTS_FATALS)
  target_compile_options(velorin_drapeaux INTERFACE -Werror)
endif()
if(VELORIN_SANITIZE)
  target_compile_options(velorin_drapeaux INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                    -fno-omit-frame-pointer)
  target_link_options(velorin_drapeaux INTERFACE -fsanitize=address,undefined)
endif()
