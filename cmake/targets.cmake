# How every target of this project is built.

# sivane_target(TARGET [STANDARD number]): its C++ standard, 20 unless another is given, without extensions, and the
# warnings of the project. They are private: a host keeps its own. CMAKE_COMPILE_WARNING_AS_ERROR, which every preset
# sets, makes them errors.
function(sivane_target target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "STANDARD" "")
  if(NOT arg_STANDARD)
    set(arg_STANDARD 20)
  endif()
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD ${arg_STANDARD} CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
endfunction()

# sivane_shared(TARGET): its version where it is a shared library, which offers what is marked for that and nothing else.
function(sivane_shared target)
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    VERSION ${PROJECT_VERSION}
    SOVERSION ${SIVANE_INTERFACE})
endfunction()

# sivane_executable(NAME source... [LIBRARIES library...] [STANDARD number]): a program by the rules of sivane_target.
function(sivane_executable name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "STANDARD" "LIBRARIES")
  add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
  sivane_target(${name} STANDARD ${arg_STANDARD})
endfunction()
