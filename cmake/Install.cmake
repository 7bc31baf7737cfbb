# What `cmake --install` puts where. Each file belongs to one component: runtime, development or
# tool.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(cmake_folder ${CMAKE_INSTALL_LIBDIR}/cmake/apmqdf)
set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(generated ${PROJECT_BINARY_DIR}/install)

# The library with the headers that a host includes.
install(TARGETS apmqdf EXPORT apmqdf
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development
  FILE_SET HEADERS COMPONENT development)

# For hosts that build with CMake.
configure_file(${CMAKE_CURRENT_LIST_DIR}/apmqdf-config.cmake.in
  ${generated}/apmqdf-config.cmake @ONLY)
write_basic_package_version_file(${generated}/apmqdf-config-version.cmake
  COMPATIBILITY SameMinorVersion)
install(EXPORT apmqdf FILE apmqdf-targets.cmake NAMESPACE apmqdf::
  DESTINATION ${cmake_folder} COMPONENT development)
install(FILES ${generated}/apmqdf-config.cmake ${generated}/apmqdf-config-version.cmake
  DESTINATION ${cmake_folder} COMPONENT development)

# For hosts that build with anything else. The file finds the prefix from where it lies, unless a
# folder outside of the prefix was asked for. What is appended takes the prefix's place when it is
# absolute.
set(pkgconfig_prefix ${CMAKE_INSTALL_PREFIX})
if(NOT IS_ABSOLUTE ${pkgconfig_folder})
  file(RELATIVE_PATH pkgconfig_to_prefix /${pkgconfig_folder} /)
  set(pkgconfig_prefix \${pcfiledir}/${pkgconfig_to_prefix})
endif()
foreach(folder LIBDIR INCLUDEDIR)
  set(pkgconfig_${folder} \${prefix})
  cmake_path(APPEND pkgconfig_${folder} ${CMAKE_INSTALL_${folder}})
endforeach()
if(NOT BUILD_SHARED_LIBS)
  set(pkgconfig_requires "Requires.private: pugixml")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/apmqdf.pc.in ${generated}/apmqdf.pc @ONLY)
install(FILES ${generated}/apmqdf.pc DESTINATION ${pkgconfig_folder} COMPONENT development)

# The program, with its page and its completion.
if(TARGET qdf)
  install(TARGETS qdf RUNTIME COMPONENT tool)
  install(FILES ${PROJECT_SOURCE_DIR}/docs/qdf.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
  install(FILES ${PROJECT_SOURCE_DIR}/tool/completion/qdf.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME qdf
    COMPONENT tool)
endif()
