# The one place for compiler flags: every target of ours links tintora_flags.
add_library(tintora_flags INTERFACE)

# -Wrestrict is off: GCC 12 sees overlaps in plain string concatenation that are none.
target_compile_options(
  tintora_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wold-style-cast -Woverloaded-virtual $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
                          $<$<BOOL:${TINTORA_WARNINGS_AS_ERRORS}>:-Werror>)

target_compile_definitions(tintora_flags INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(TINTORA_SANITIZE)
  target_compile_options(tintora_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                 -fno-omit-frame-pointer)
  target_link_options(tintora_flags INTERFACE -fsanitize=address,undefined)
endif()

if(TINTORA_BUILD_FUZZ)
  target_compile_options(tintora_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
