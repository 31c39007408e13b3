# Helpers shared by every folder: one static library per folder under src/, one GoogleTest
# executable per folder under tests/, each case its own CTest test.

function(fenwold_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wno-unused-parameter)
  target_compile_definitions(${target} PRIVATE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER)
  if(FENWOLD_SANITIZE)
    # AddressSanitizer and UndefinedBehaviorSanitizer; undefined behaviour stops the run at the
    # first report instead of printing and going on.
    target_compile_options(${target} PRIVATE
      -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
  endif()
endfunction()

# fenwold_library(<name> SOURCES ... DEPS ...)
function(fenwold_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_DEPS})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  fenwold_warnings(${name})
endfunction()

# fenwold_test(<name> SOURCES ... DEPS ...)
function(fenwold_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_DEPS} fenwold_testsupport GTest::gtest GTest::gmock)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  fenwold_warnings(${name})
  gtest_discover_tests(${name}
    DISCOVERY_MODE PRE_TEST
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8"
    DISCOVERY_TIMEOUT 60)
endfunction()

include(GoogleTest)
