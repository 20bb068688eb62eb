# fmt is used as headers only: they are copied out of the system's include folder, so that the
# cross-compiler sees them without seeing the rest of that folder.
find_path(FMT_HEADERS fmt/format.h PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(COPY ${FMT_HEADERS}/fmt DESTINATION ${CMAKE_BINARY_DIR}/third_party)
add_library(vrel_fmt INTERFACE)
target_include_directories(vrel_fmt SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/third_party)
target_compile_definitions(vrel_fmt INTERFACE FMT_HEADER_ONLY)
