# Makes docs/descriptors.md of the rows of the descriptor sets: cmake -P docs/descriptor_page.cmake
# With -D CHECK=ON it says whether the page is what the rows make, and changes nothing.
set(sources ${CMAKE_CURRENT_LIST_DIR}/../sivane/descriptors)
set(page_file ${CMAKE_CURRENT_LIST_DIR}/descriptors.md)
set(page "# Descriptors, their classes and getters

Made of the rows of the two sets by [descriptor_page.cmake](descriptor_page.cmake). A class is in the header that its
name links to. Its getter gives a vector of all that a table or entry holds. The element is its name in documents, and in
dumps too where nothing else is given. Odd spellings belong to documents and dumps that were stored: they stay.
")

# HEADER_OF_<class>: the header that a class is in.
file(GLOB headers RELATIVE ${sources} ${sources}/*.h ${sources}/extended/*.h)
foreach(header ${headers})
  file(STRINGS ${sources}/${header} lines REGEX "^class SIVANE_API [A-Za-z0-9_]+ ")
  foreach(line ${lines})
    string(REGEX REPLACE "^class SIVANE_API ([A-Za-z0-9_]+).*" "\\1" class "${line}")
    set(HEADER_OF_${class} ${header})
  endforeach()
endforeach()

# Appends to the page a line for one row, whose columns are the arguments.
function(add_line tag class getter element in_dumps)
  if(NOT HEADER_OF_${class})
    message(FATAL_ERROR "no header declares ${class}")
  endif()
  set(link "[${class}](../sivane/descriptors/${HEADER_OF_${class}})")
  if(in_dumps)
    set(in_dumps "`${in_dumps}`")
  endif()
  set(page "${page}| ${tag} | ${link} | `${getter}` | `${element}` | ${in_dumps} |\n" PARENT_SCOPE)
endfunction()

# Appends to the page a table of the rows in a file, by tag; those without a class come last.
macro(add_rows title file)
  string(APPEND page "\n## ${title}\n\n| tag | class | getter | element | in dumps |\n|---|---|---|---|---|\n")
  file(STRINGS ${sources}/${file} rows REGEX "^SIVANE_(ROW|ODD)\\(")
  list(TRANSFORM rows REPLACE "^SIVANE_[A-Z]+" "")
  list(SORT rows)
  foreach(row ${rows})
    string(REGEX MATCH "^\\(([^,]+), *([^,]+), *([^,]+), *\"([^\"]+)\"(, *\"([^\"]+)\")?\\)$" whole "${row}")
    if(NOT whole)
      message(FATAL_ERROR "not understood: ${row}")
    endif()
    add_line("${CMAKE_MATCH_1}" "${CMAKE_MATCH_2}" "${CMAKE_MATCH_3}" "${CMAKE_MATCH_4}" "${CMAKE_MATCH_6}")
  endforeach()
  add_line("0x80 to 0xFF" DescriptorGeneral get_user_private_descriptors user_private_descriptor "")
  add_line("other" DescriptorGeneral get_general_descriptors general_descriptor "")
endmacro()

add_rows("In all tables but the AIT" descriptor_rows.inc)
add_rows("In an application information table" ait_descriptor_rows.inc)

string(APPEND page "
## Built on demand

A set keeps these as bytes, as `DescriptorGeneral`; [extended.h](../sivane/descriptors/extended/extended.h) has the
functions that make objects of them. The extension is the first byte of the body; the specifier is the
private_data_specifier that must be in force.

| tag | extension | specifier | class | in dumps |
|---|---|---|---|---|
")
file(STRINGS ${sources}/extended/extended_descriptor_rows.inc rows REGEX "^SIVANE_EXTENDED_ROW\\(")
foreach(row ${rows})
  string(REGEX MATCH "^SIVANE_EXTENDED_ROW\\(([^,]+), *([^,]+), *([^,]+), *([^,]+), *\"([^\"]+)\"\\)$" whole "${row}")
  if(NOT whole OR NOT HEADER_OF_${CMAKE_MATCH_4})
    message(FATAL_ERROR "not understood: ${row}")
  endif()
  set(columns "${CMAKE_MATCH_1} | ${CMAKE_MATCH_2} | ${CMAKE_MATCH_3}")
  string(REPLACE "any" "" columns "${columns}")
  string(APPEND page "| ${columns} | [${CMAKE_MATCH_4}](../sivane/descriptors/${HEADER_OF_${CMAKE_MATCH_4}}) | `${CMAKE_MATCH_5}` |\n")
endforeach()

if(NOT CHECK)
  file(WRITE ${page_file} "${page}")
  return()
endif()
file(READ ${page_file} stored)
if(NOT stored STREQUAL page)
  message(FATAL_ERROR "docs/descriptors.md is not what the rows make; run: cmake -P docs/descriptor_page.cmake")
endif()
