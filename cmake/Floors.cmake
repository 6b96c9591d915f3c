# One static library for each floor under src/, and one test program for each.
# A floor is named after its folder, with "_" for "/": host_qt is src/host/qt.
# Targets bear the prefix "quill_", so that none meets one of another project.

# quill_floor(NAME SOURCES ... [USES floor ...])
#
# USES is the floor's row of the table in src/README.md; tests/floors compares them.
function(quill_floor name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  list(TRANSFORM ARG_USES PREPEND quill_)
  add_library(quill_${name} STATIC ${ARG_SOURCES})
  target_include_directories(quill_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(quill_${name} PUBLIC ${ARG_USES} PRIVATE quill_options)
endfunction()

# quill_program(NAME SOURCES ... USES floor ...): an executable of that very name.
function(quill_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  list(TRANSFORM ARG_USES PREPEND quill_)
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_USES} quill_options)
endfunction()

# quill_test(NAME SOURCES ... USES floor ...)
function(quill_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  quill_program(quill_test_${name} SOURCES ${ARG_SOURCES} USES ${ARG_USES})
  target_include_directories(quill_test_${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(quill_test_${name} PRIVATE GTest::gtest GTest::gmock GTest::gtest_main)
  add_test(NAME ${name} COMMAND quill_test_${name})
endfunction()
