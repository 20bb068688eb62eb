# GoogleTest is compiled from the sources that Debian installs, with this build's own compiler and
# flags, so that sanitized and cross-built tests link against a matching library.
set(gtest_root /usr/src/googletest)
set(gtest_include ${CMAKE_BINARY_DIR}/third_party/googletest)
file(COPY ${gtest_root}/googletest ${gtest_root}/googlemock DESTINATION ${gtest_include})
add_library(vrel_gtest STATIC
    ${gtest_include}/googletest/src/gtest-all.cc
    ${gtest_include}/googlemock/src/gmock-all.cc
    ${gtest_include}/googlemock/src/gmock_main.cc)
target_include_directories(vrel_gtest SYSTEM
    PUBLIC ${gtest_include}/googletest/include ${gtest_include}/googlemock/include
    PRIVATE ${gtest_include}/googletest ${gtest_include}/googlemock)
find_package(Threads REQUIRED)
target_link_libraries(vrel_gtest PUBLIC Threads::Threads)
