# Writes SIVANE_DEBIAN_CHANGELOG, the newest part of CHANGELOG.md as Debian packages have it, and compressed. The date is
# SOURCE_DATE_EPOCH or now.
find_program(SIVANE_GZIP gzip)
mark_as_advanced(SIVANE_GZIP)
if(NOT SIVANE_GZIP)
  return()
endif()
set(SIVANE_DEBIAN_CHANGELOG ${PROJECT_BINARY_DIR}/changelog.Debian.gz)

file(READ CHANGELOG.md changes)
string(REGEX REPLACE "^.*## ${PROJECT_VERSION} [^\n]*\n+" "" changes "${changes}")
string(REGEX REPLACE "\n+## .*" "\n" changes "${changes}")
string(REGEX REPLACE "(^|\n)  " "\\1    " changes "${changes}")
string(REGEX REPLACE "(^|\n)- " "\\1  * " changes "${changes}")
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${PROJECT_BINARY_DIR}/changelog.Debian
  "sivane (${PROJECT_VERSION}) unstable; urgency=medium\n\n${changes}\n -- ${SIVANE_PACKAGE_CONTACT}  ${date}\n")
execute_process(COMMAND ${SIVANE_GZIP} -9n
  INPUT_FILE ${PROJECT_BINARY_DIR}/changelog.Debian OUTPUT_FILE ${SIVANE_DEBIAN_CHANGELOG} COMMAND_ERROR_IS_FATAL ANY)
