# QUILLMERE_SANITIZE=address,undefined puts every target, tests included, under those sanitizers.
set(QUILLMERE_SANITIZE "" CACHE STRING "Sanitizers for every target, separated by commas")
if(QUILLMERE_SANITIZE)
  add_compile_definitions(QUILLMERE_SANITIZED)
  add_compile_options(-fsanitize=${QUILLMERE_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${QUILLMERE_SANITIZE})
endif()
