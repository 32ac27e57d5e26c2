# How every target is compiled. The figures are defined to the last digit: no fused or reordered arithmetic.
add_library(velmaris_reglages INTERFACE)
target_compile_options(velmaris_reglages INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-align -Woverloaded-virtual
  -Wnull-dereference -Werror -ffp-contract=off
  # g++ 12 sees an overlap in the library's own text additions, where there is none.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
# What is handed out is hardened as Debian hardens its own, and its containers check their subscripts; none of these flags
# touches arithmetic. Only some processors know the marks of where a jump may land.
if(NOT VELMARIS_SANITIZE AND NOT VELMARIS_FUZZ AND NOT VELMARIS_COVERAGE)
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-fcf-protection VELMARIS_SAUTS_MARQUES)
  target_compile_options(velmaris_reglages INTERFACE
    $<$<CONFIG:Release>:-fPIE -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
                        -D_GLIBCXX_ASSERTIONS $<$<BOOL:${VELMARIS_SAUTS_MARQUES}>:-fcf-protection>>)
  target_link_options(velmaris_reglages INTERFACE $<$<CONFIG:Release>:-pie -Wl,-z,relro,-z,now>)
endif()
if(VELMARIS_SANITIZE)
  # The desk is a bigger object than the check of virtual tables believes in.
  target_compile_options(velmaris_reglages INTERFACE -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all
                         -fno-omit-frame-pointer
                         # g++ 12 takes the library's own regular expressions for unset under the sanitizers.
                         $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(velmaris_reglages INTERFACE -fsanitize=address,undefined)
endif()
if(VELMARIS_FUZZ)
  target_compile_options(velmaris_reglages INTERFACE -fsanitize=fuzzer-no-link,address,undefined)
  target_link_options(velmaris_reglages INTERFACE -fsanitize=address,undefined)
endif()
# Lines are counted as they are written: nothing inlined, nothing reordered.
if(VELMARIS_COVERAGE)
  target_compile_options(velmaris_reglages INTERFACE --coverage -fprofile-abs-path -O0 -g0)
  target_link_options(velmaris_reglages INTERFACE --coverage)
endif()
