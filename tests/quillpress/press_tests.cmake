# Tests of `quillpress build`.
set(press_tests manuscript_test.cpp press_test.cpp)
if(TARGET quillpress_test)
  target_sources(quillpress_test PRIVATE ${press_tests})
endif()
