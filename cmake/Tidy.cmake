# clang-tidy over the library and the tool, each file again only after it, a header or the list of
# checks has changed: the target apmqdf-tidy with all checks but clang's static analyser, and
# apmqdf-analyse with that, which takes as long as all others. Naming the list makes a broken one a
# failure.

find_program(CLANG_TIDY clang-tidy)
set(tidy_list ${PROJECT_SOURCE_DIR}/.clang-tidy)
file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/qdf/*/*.h
  ${PROJECT_SOURCE_DIR}/tool/*.h ${PROJECT_SOURCE_DIR}/tool/*/*.h)

# add_tidy_target(<name> <what to add to the list of checks> <targets>...)
function(add_tidy_target name checks)
  set(stamps)
  foreach(target IN LISTS ARGN)
    if(CLANG_TIDY AND TARGET ${target})
      get_target_property(sources ${target} SOURCES)
      foreach(source IN LISTS sources)
        file(RELATIVE_PATH file ${PROJECT_SOURCE_DIR} ${source})
        set(stamp ${PROJECT_BINARY_DIR}/${name}/${file}.ok)
        cmake_path(GET stamp PARENT_PATH folder)
        file(MAKE_DIRECTORY ${folder})
        add_custom_command(
          OUTPUT ${stamp}
          COMMAND ${CLANG_TIDY} --quiet --config-file=${tidy_list} --checks=${checks}
            -p ${PROJECT_BINARY_DIR} ${source}
          COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
          DEPENDS ${source} ${headers} ${tidy_list}
          COMMENT "clang-tidy ${file}"
          VERBATIM)
        list(APPEND stamps ${stamp})
      endforeach()
    endif()
  endforeach()
  if(stamps)
    add_custom_target(${name} DEPENDS ${stamps})
  endif()
endfunction()

add_tidy_target(apmqdf-tidy -clang-analyzer-* apmqdf-objects qdf-parts qdf)
# The list ends with what this adds: it excludes what the list itself excludes of the analyser.
add_tidy_target(apmqdf-analyse -*,clang-analyzer-*,-clang-analyzer-optin.performance.Padding
  apmqdf-objects qdf-parts qdf)
