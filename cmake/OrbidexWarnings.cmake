# One INTERFACE target carries the warning flags and the sanitizer flags, so that no
# directory-wide flag is needed.
add_library(orbidex_warnings INTERFACE)
target_compile_options(orbidex_warnings INTERFACE
  -Wall -Wextra -Wshadow -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
  -Wcast-align -Wimplicit-fallthrough)
if(ORBIDEX_WERROR)
  target_compile_options(orbidex_warnings INTERFACE -Werror)
endif()

add_library(orbidex_sanitize INTERFACE)
if(ORBIDEX_SANITIZE)
  target_compile_options(orbidex_sanitize INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -g)
  target_link_options(orbidex_sanitize INTERFACE -fsanitize=address,undefined)
endif()

# Fuzz builds instrument the core for coverage; the targets themselves link libFuzzer.
if(ORBIDEX_FUZZ)
  target_compile_options(orbidex_sanitize INTERFACE -fsanitize=fuzzer-no-link)
endif()
