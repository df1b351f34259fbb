# What is installed, and the Debian packages that cpack makes of it: libsivane0.1 (component runtime), libsivane-dev
# (development), those of each library over the core, sivane-inspect (inspect) and python3-sivane (python). Configure with `--install-prefix /usr`
# for packages, so that the library goes where the distribution keeps its own.
include(CMakePackageConfigHelpers)

set(SIVANE_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/sivane)
install(TARGETS sivane EXPORT sivaneTargets
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development
  FILE_SET HEADERS COMPONENT development)
install(EXPORT sivaneTargets NAMESPACE sivane:: DESTINATION ${SIVANE_CMAKE_DIR} COMPONENT development)

# The prefix in sivane.pc is relative to the file, since cpack and `cmake --install --prefix` move the tree.
file(RELATIVE_PATH SIVANE_PC_TO_PREFIX
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/sivane.pc.in ${PROJECT_BINARY_DIR}/sivane.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/sivane.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
set(SIVANE_PACKAGE_CONTACT "The sivane authors <sivane@sivane.invalid>" CACHE STRING
  "Who answers for the packages: a name and an address")
include(cmake/debian_changelog.cmake)

# sivane_package(COMPONENT PACKAGE SECTION DESCRIPTION [dependency...]): the Debian package of what is installed as the
# component, with its copyright and changelog.
macro(sivane_package component package section description)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${description}")
  string(JOIN ", " CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS ${ARGN})
  set(documents ${CMAKE_INSTALL_DATADIR}/doc/${package})
  install(FILES LICENSE DESTINATION ${documents} RENAME copyright COMPONENT ${component})
  if(EXISTS ${SIVANE_DEBIAN_CHANGELOG})
    install(FILES ${SIVANE_DEBIAN_CHANGELOG} DESTINATION ${documents} RENAME changelog.gz COMPONENT ${component})
  endif()
  list(APPEND CPACK_COMPONENTS_ALL ${component})
endmacro()

# sivane_runtime_package(COMPONENT PACKAGE DESCRIPTION [dependency...]): the same for a shared library.
file(WRITE ${PROJECT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
macro(sivane_runtime_package component package description)
  sivane_package(${component} ${package} libs "${description}" ${ARGN})
  set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/triggers)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS ON)
endmacro()

# sivane_install_component(NAME DESCRIPTION [COMPONENTS name...] [PACKAGES package...] [PC module...] [DEBIAN package...]):
# installs sivane::NAME with headers, CMake targets of its own, so that only hosts that ask for the component need what it
# is built on, and sivane-NAME.pc. COMPONENTS are those that it stands on; PACKAGES, PC and DEBIAN what a host needs besides,
# for CMake, pkg-config and Debian. The packages are libsivane-NAME-dev and, of a shared library, libsivane-NAME0.1
# (component NAME_runtime).
set(SIVANE_COMPONENTS)
macro(sivane_install_component name description)
  cmake_parse_arguments(arg "" "" "COMPONENTS;PACKAGES;PC;DEBIAN" ${ARGN})
  string(APPEND SIVANE_COMPONENTS "set(sivane_${name}_COMPONENTS ${arg_COMPONENTS})\n"
    "set(sivane_${name}_PACKAGES \"${arg_PACKAGES}\")\n")
  set(development_needs "libsivane-dev (= ${PROJECT_VERSION})" ${arg_DEBIAN})
  set(runtime_needs "${SIVANE_RUNTIME_PACKAGE} (= ${PROJECT_VERSION})")
  set(modules "sivane = ${PROJECT_VERSION}" ${arg_PC})
  foreach(need IN LISTS arg_COMPONENTS)
    list(APPEND development_needs "libsivane-${need}-dev (= ${PROJECT_VERSION})")
    list(APPEND runtime_needs "libsivane-${need}${SIVANE_INTERFACE} (= ${PROJECT_VERSION})")
    list(APPEND modules "sivane-${need} = ${PROJECT_VERSION}")
  endforeach()

  install(TARGETS sivane_${name} EXPORT sivane-${name}-targets
    LIBRARY COMPONENT ${name}_runtime NAMELINK_COMPONENT ${name}
    ARCHIVE COMPONENT ${name}
    FILE_SET HEADERS COMPONENT ${name})
  install(EXPORT sivane-${name}-targets NAMESPACE sivane:: DESTINATION ${SIVANE_CMAKE_DIR} COMPONENT ${name})
  set(SIVANE_PC_NAME ${name})
  set(SIVANE_PC_DESCRIPTION "${description}")
  string(JOIN ", " SIVANE_PC_REQUIRES ${modules})
  configure_file(cmake/sivane-component.pc.in ${PROJECT_BINARY_DIR}/sivane-${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/sivane-${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ${name})

  get_target_property(type sivane_${name} TYPE)
  if(type STREQUAL SHARED_LIBRARY)
    # In the system's own folder everything is found without being told where.
    set(file "\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/$<TARGET_FILE_NAME:sivane_${name}>")
    install(CODE "if(CMAKE_INSTALL_PREFIX MATCHES \"/usr$\" AND EXISTS \"${file}\")
        file(RPATH_REMOVE FILE \"${file}\")
      endif()" COMPONENT ${name}_runtime)
    set(runtime_package libsivane-${name}${SIVANE_INTERFACE})
    sivane_runtime_package(${name}_runtime ${runtime_package} "${description}: the shared library." ${runtime_needs})
    list(APPEND development_needs "${runtime_package} (= ${PROJECT_VERSION})")
  endif()
  sivane_package(${name} libsivane-${name}-dev libdevel "${description}." ${development_needs})
endmacro()

set(SIVANE_RUNTIME_PACKAGE libsivane${SIVANE_INTERFACE})
set(CPACK_COMPONENTS_ALL)
sivane_runtime_package(runtime ${SIVANE_RUNTIME_PACKAGE} "The shared library.")
sivane_package(development libsivane-dev libdevel "Headers, the CMake package and the pkg-config file."
  "${SIVANE_RUNTIME_PACKAGE} (= ${PROJECT_VERSION})")
if(TARGET sivane_dom)
  sivane_install_component(dom "A DOM for hosts without one"
    PACKAGES EXPAT
    PC expat
    DEBIAN libexpat1-dev)
endif()
if(TARGET sivane_charset)
  set(iconv)
  if(NOT Iconv_IS_BUILT_IN)
    set(iconv PACKAGES Iconv)
  endif()
  sivane_install_component(charset "Texts of broadcasts as UTF-8" ${iconv})
endif()
if(TARGET sivane_catalogue)
  sivane_install_component(catalogue "What a stream has, put together from its tables" COMPONENTS charset)
endif()
configure_package_config_file(cmake/sivaneConfig.cmake.in ${PROJECT_BINARY_DIR}/sivaneConfig.cmake
  INSTALL_DESTINATION ${SIVANE_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/sivaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/sivaneConfig.cmake ${PROJECT_BINARY_DIR}/sivaneConfigVersion.cmake
  DESTINATION ${SIVANE_CMAKE_DIR} COMPONENT development)

if(TARGET sivane-inspect)
  install(TARGETS sivane-inspect RUNTIME COMPONENT inspect)
  if(TARGET sivane_inspect_pages)
    include(cmake/inspect_pages.cmake)
  endif()
  # Version 0 promises no stable interface, so that tool and libraries are of the same build.
  sivane_package(inspect sivane-inspect utils "The command-line tool that shows what a stream holds."
    "${SIVANE_RUNTIME_PACKAGE} (= ${PROJECT_VERSION})" "libsivane-charset${SIVANE_INTERFACE} (= ${PROJECT_VERSION})"
    "libsivane-catalogue${SIVANE_INTERFACE} (= ${PROJECT_VERSION})")
  set(CPACK_DEBIAN_INSPECT_PACKAGE_SHLIBDEPS ON)
endif()

if(TARGET sivane_python)
  include(cmake/python_package.cmake)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "the sivane authors")
set(CPACK_PACKAGE_CONTACT "${SIVANE_PACKAGE_CONTACT}")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# A host's package asks for a library at least as new as that it was linked with; an older interface has another name.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/sivane)
include(CPack)
