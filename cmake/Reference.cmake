# The target apmqdf-reference: the pages for hosts and the public headers, in reference/html of the
# build folder. A comment or link that Doxygen can't make sense of ends the build.

find_program(DOXYGEN doxygen)
mark_as_advanced(DOXYGEN)
if(NOT DOXYGEN)
  return()
endif()

get_target_property(headers apmqdf HEADER_SET)
list(JOIN headers " " headers)
add_custom_target(apmqdf-reference
  COMMAND ${CMAKE_COMMAND} -E env
    APMQDF_VERSION=${PROJECT_VERSION}
    APMQDF_SOURCE=${PROJECT_SOURCE_DIR}
    APMQDF_HEADERS=${headers}
    APMQDF_REFERENCE=${PROJECT_BINARY_DIR}/reference
    ${DOXYGEN} ${PROJECT_SOURCE_DIR}/docs/Doxyfile
  COMMENT "Making the reference"
  VERBATIM)
