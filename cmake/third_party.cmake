# fmt's headers are copied out of the system's include folder, so that the cross-compiler sees them
# without seeing the rest of that folder. What of fmt is not a template is compiled here, once and
# with this build's own compiler; that source follows version 9, others are used as headers only.
find_path(FMT_HEADERS fmt/format.h PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(COPY ${FMT_HEADERS}/fmt DESTINATION ${CMAKE_BINARY_DIR}/third_party)
file(STRINGS ${FMT_HEADERS}/fmt/core.h fmt_version REGEX "define FMT_VERSION 9[0-9][0-9][0-9][0-9]$")
if(fmt_version)
  add_library(vrel_fmt STATIC cmake/fmt.cpp)
  target_include_directories(vrel_fmt SYSTEM PUBLIC ${CMAKE_BINARY_DIR}/third_party)
else()
  add_library(vrel_fmt INTERFACE)
  target_include_directories(vrel_fmt SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/third_party)
  target_compile_definitions(vrel_fmt INTERFACE FMT_HEADER_ONLY)
endif()
