# orbidex_add_test(<name> SOURCES <files...> [LIBS <targets...>] [QT])
# Builds one GoogleTest executable and registers its tests with CTest.  QT tests run
# with the offscreen platform; every test gets a fixed locale and time zone.
include(GoogleTest)
find_package(GTest REQUIRED)

function(orbidex_add_test name)
  cmake_parse_arguments(ARG "QT" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE orbidex_test_support ${ARG_LIBS} GTest::gtest GTest::gtest_main
                        orbidex_warnings)
  set(env "LANG=C.UTF-8" "LC_ALL=C.UTF-8" "TZ=Europe/London")
  if(ARG_QT)
    list(APPEND env "QT_QPA_PLATFORM=offscreen")
  endif()
  gtest_discover_tests(${name}
    PROPERTIES ENVIRONMENT "${env}"
    DISCOVERY_TIMEOUT 60
    DISCOVERY_MODE PRE_TEST)
endfunction()
