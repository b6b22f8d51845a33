# Compiles through ccache when it is installed, so that a second build tree of the same
# sources (another checkout, the sanitizer build after a clean) reuses what was compiled.
# Paths are hashed relative to the source folder, so two checkouts share the cache.
find_program(ORBIDEX_CCACHE ccache)
if(ORBIDEX_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros ${ORBIDEX_CCACHE})
endif()
