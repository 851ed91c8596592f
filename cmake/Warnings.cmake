# One place for the warnings of every target of the project; a warning is an error.
add_library(quillmere_warnings INTERFACE)
target_compile_options(quillmere_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
  -Woverloaded-virtual -Werror)
