# Compiles each header of the library alone (twice in a row, for its guard), and those that a host
# includes once more as C++17. A header that leans on what others include ends the build.

# add_header_check(<name> <standard> <header>...), headers as "qdf/<folder>/<name>.h"
function(add_header_check name standard)
  set(sources)
  foreach(header IN LISTS ARGN)
    string(REGEX REPLACE "\\.h$" ".cpp" source "${CMAKE_CURRENT_BINARY_DIR}/${name}/${header}")
    file(CONFIGURE OUTPUT ${source} CONTENT "#include \"@header@\"\n#include \"@header@\"\n" @ONLY)
    list(APPEND sources ${source})
  endforeach()
  if(sources)
    add_library(${name} OBJECT ${sources})
    set_target_properties(${name} PROPERTIES CXX_STANDARD ${standard})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE apmqdf-warnings)
  endif()
endfunction()

file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
     ${PROJECT_SOURCE_DIR}/qdf/*.h)
add_header_check(apmqdf-header-check 20 ${headers})

get_directory_property(public_headers DIRECTORY ${PROJECT_SOURCE_DIR}/qdf
                       DEFINITION APMQDF_PUBLIC_HEADERS)
list(TRANSFORM public_headers PREPEND qdf/)
add_header_check(apmqdf-public-header-check 17 ${public_headers})
