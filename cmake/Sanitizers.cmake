# Turns APMQDF_SANITIZE into flags for everything that is built; any finding ends the program.

if(APMQDF_SANITIZE)
  add_compile_options(-fsanitize=${APMQDF_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=${APMQDF_SANITIZE})
endif()
