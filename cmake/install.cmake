# An installation: the folder that KORVHOME names. The program with its window's module in bin/, the
# languages in i18n/ (see there), the example as sample data, a folder for the log, and what the
# installation is: its version, and how the program was built.
install(TARGETS vrel RUNTIME DESTINATION bin)
if(TARGET vrel_ui)
  install(TARGETS vrel_ui LIBRARY DESTINATION bin)
endif()
install(DIRECTORY examples/ DESTINATION sample_data FILES_MATCHING PATTERN "plan.*" PATTERN "*.cmd")
install(DIRECTORY DESTINATION logs)

file(WRITE ${CMAKE_BINARY_DIR}/installed/.version "${PROJECT_VERSION}\n")
install(FILES ${CMAKE_BINARY_DIR}/installed/.version DESTINATION .)
install(CODE "
  execute_process(COMMAND git rev-parse --short HEAD WORKING_DIRECTORY \"${CMAKE_SOURCE_DIR}\"
                  OUTPUT_VARIABLE revision OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  file(WRITE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/.build\"
       \"${CMAKE_BUILD_TYPE} ${CMAKE_SYSTEM_NAME} ${CMAKE_SYSTEM_PROCESSOR} \"
       \"${CMAKE_CXX_COMPILER_ID} ${CMAKE_CXX_COMPILER_VERSION} \${revision}\\n\")
")
