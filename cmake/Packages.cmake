# What `cpack` makes: a Debian package for each component. The preset `package` sets the prefix with
# which the folders are Debian's own.

# debian_package(<component> <name> <section> <depends> <description>); what a package's programs
# and libraries are linked with, dpkg-shlibdeps adds to what it depends on.
macro(debian_package component name section depends description)
  string(TOUPPER ${component} id)
  set(CPACK_DEBIAN_${id}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${id}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${id}_PACKAGE_DEPENDS "${depends}")
  set(CPACK_DEBIAN_${id}_DESCRIPTION "${description}")
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
    RENAME copyright COMPONENT ${component})
endmacro()

set(runtime_package libapmqdf${APMQDF_SOVERSION})
if(BUILD_SHARED_LIBS)
  debian_package(runtime ${runtime_package} libs ""
"printer abilities from QDF documents (library)
A QDF document says which inks, media, print modes, resolutions and colour
modes a printer has, and which of them go together. This library loads such
documents, narrows print jobs, and writes, derives and translates documents.")
  set(development_depends "${runtime_package} (= ${PROJECT_VERSION})")
else()
  set(development_depends libpugixml-dev)
endif()
debian_package(development libapmqdf-dev libdevel "${development_depends}"
"printer abilities from QDF documents (development files)
Headers, and what CMake and pkg-config need, for programs that load QDF
documents of printers and narrow print jobs with them.")
if(TARGET qdf)
  debian_package(tool qdf utils ""
"show, explain and change QDF documents of printers
A command-line tool for the engineers who write the documents that say what a
printer can do. It tells what is wrong in a document, where and why.")
endif()

find_program(DPKG_SHLIBDEPS dpkg-shlibdeps)
mark_as_advanced(DPKG_SHLIBDEPS)
if(DPKG_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "the apmqdf authors <apmqdf@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
include(CPack)
