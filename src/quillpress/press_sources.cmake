# What `quillpress build` is made of. Debian's own configuration of cmark is not
# asked for: it wants the package of the command-line program besides.
set(press_sources build_command.cpp manuscript.cpp manuscript_parts.cpp paragraph.cpp press.cpp)

find_library(CMARK_LIBRARY cmark REQUIRED)
if(TARGET quillpress_core)
  target_sources(quillpress_core PRIVATE ${press_sources})
  target_link_libraries(quillpress_core PRIVATE host_memory "${CMARK_LIBRARY}")
endif()
