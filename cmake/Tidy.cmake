# The target apmqdf-tidy: clang-tidy over the library and the tool, each file again only after it,
# a header or the list of checks has changed. Naming the list makes a broken one a failure.

find_program(CLANG_TIDY clang-tidy)
set(tidy_list ${PROJECT_SOURCE_DIR}/.clang-tidy)
file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/qdf/*/*.h
  ${PROJECT_SOURCE_DIR}/tool/*.h ${PROJECT_SOURCE_DIR}/tool/*/*.h)

set(stamps)
foreach(target apmqdf-objects qdf-parts qdf)
  if(CLANG_TIDY AND TARGET ${target})
    get_target_property(sources ${target} SOURCES)
    foreach(source IN LISTS sources)
      file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR} ${source})
      set(stamp ${PROJECT_BINARY_DIR}/tidy/${name}.ok)
      cmake_path(GET stamp PARENT_PATH folder)
      file(MAKE_DIRECTORY ${folder})
      add_custom_command(
        OUTPUT ${stamp}
        COMMAND ${CLANG_TIDY} --quiet --config-file=${tidy_list} -p ${PROJECT_BINARY_DIR} ${source}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${source} ${headers} ${tidy_list}
        COMMENT "clang-tidy ${name}"
        VERBATIM)
      list(APPEND stamps ${stamp})
    endforeach()
  endif()
endforeach()

if(stamps)
  add_custom_target(apmqdf-tidy DEPENDS ${stamps})
endif()
