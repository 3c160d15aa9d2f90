# Compiler flags, stated once. Arithmetic is the same on every machine: no fast-math, no contraction of a*b+c.
add_library(velorin_drapeaux INTERFACE)
target_compile_options(velorin_drapeaux INTERFACE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual
                                                  -ffp-contract=off)
if(VELORIN_ENSEMBLES)
  # To the compiler all is one file: a local name may be that of another, an anonymous namespace seems included.
  target_compile_options(velorin_drapeaux INTERFACE -Wno-subobject-linkage)
else()
  target_compile_options(velorin_drapeaux INTERFACE -Wshadow -Werror=shadow)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # This compiler sees overlaps and overruns in joined strings that are not there; the sanitizers look for true ones.
  target_compile_options(velorin_drapeaux INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread
                                                    -Wno-array-bounds)
endif()
# A release is small, for a quick start in little memory: what no program calls is left out, and only the calculations,
# where the time goes, are unrolled (see velorin_calc).
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
target_compile_options(velorin_drapeaux INTERFACE $<$<CONFIG:Release>:-ffunction-sections -fdata-sections>)
target_link_options(velorin_drapeaux INTERFACE $<$<CONFIG:Release>:-Wl,--gc-sections>)
if(VELORIN_AVERTISSEMENTS_FATALS)
  target_compile_options(velorin_drapeaux INTERFACE -Werror)
endif()
if(VELORIN_SANITIZE)
  target_compile_options(velorin_drapeaux INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                    -fno-omit-frame-pointer)
  target_link_options(velorin_drapeaux INTERFACE -fsanitize=address,undefined)
endif()
