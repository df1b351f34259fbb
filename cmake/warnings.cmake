# The warnings that every target of this project builds with. They are private: a host keeps its own.
# CMAKE_COMPILE_WARNING_AS_ERROR, which every preset sets, makes them errors.
function(sivane_target_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
endfunction()
