# orbidex_add_test(<name> SOURCES <files...> [LIBS <targets...>] [QT] [TEMP_IN_MEMORY]
#                  [RESOURCE_LOCK <lock>])
# Builds one GoogleTest executable and registers its tests with CTest.  Every test
# program starts from tests/support/TestMain.cpp, which fixes the locale and the
# time zone and gives Qt the offscreen platform.  TEMP_IN_MEMORY puts the tests'
# temporary folders in memory where the machine has it (/dev/shm), for tests that
# rewrite files thousands of times, each rewrite waiting for the disk.  Tests that
# hold the same RESOURCE_LOCK never run at the same time.
include(GoogleTest)
find_package(GTest REQUIRED)

function(orbidex_add_test name)
  cmake_parse_arguments(ARG "QT;TEMP_IN_MEMORY" "RESOURCE_LOCK" "SOURCES;LIBS" ${ARGN})  # QT marks a test program that starts Qt
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE orbidex_test_main orbidex_test_support ${ARG_LIBS} GTest::gtest
                        orbidex_warnings)
  set(properties "")
  if(ARG_TEMP_IN_MEMORY AND EXISTS /dev/shm)
    list(APPEND properties ENVIRONMENT TMPDIR=/dev/shm)
  endif()
  if(ARG_RESOURCE_LOCK)
    list(APPEND properties RESOURCE_LOCK ${ARG_RESOURCE_LOCK})
  endif()
  if(properties)
    list(PREPEND properties PROPERTIES)
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 DISCOVERY_MODE PRE_TEST ${properties})
endfunction()
