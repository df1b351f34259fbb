# What is installed, and the Debian packages that cpack makes of it: libsivane0.1 (component runtime), libsivane-dev
# (development), libsivane-dom-dev (dom) and sivane-inspect (inspect). Configure with `--install-prefix /usr` for
# packages, so that the library goes where the distribution keeps its own.
include(CMakePackageConfigHelpers)

set(SIVANE_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/sivane)
install(TARGETS sivane EXPORT sivaneTargets
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development
  FILE_SET HEADERS COMPONENT development)
install(EXPORT sivaneTargets NAMESPACE sivane:: DESTINATION ${SIVANE_CMAKE_DIR} COMPONENT development)
if(TARGET sivane_dom)
  # Targets of their own, so that only hosts that ask for the component need what it is built on.
  install(TARGETS sivane_dom EXPORT sivaneDomTargets
    ARCHIVE COMPONENT dom
    FILE_SET HEADERS COMPONENT dom)
  install(EXPORT sivaneDomTargets NAMESPACE sivane:: DESTINATION ${SIVANE_CMAKE_DIR} COMPONENT dom)
endif()

configure_package_config_file(cmake/sivaneConfig.cmake.in ${PROJECT_BINARY_DIR}/sivaneConfig.cmake
  INSTALL_DESTINATION ${SIVANE_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/sivaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/sivaneConfig.cmake ${PROJECT_BINARY_DIR}/sivaneConfigVersion.cmake
  DESTINATION ${SIVANE_CMAKE_DIR} COMPONENT development)

# The prefix in sivane.pc is relative to the file, since cpack and `cmake --install --prefix` move the tree.
file(RELATIVE_PATH SIVANE_PC_TO_PREFIX
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/sivane.pc.in ${PROJECT_BINARY_DIR}/sivane.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/sivane.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
if(TARGET sivane_dom)
  configure_file(cmake/sivane-dom.pc.in ${PROJECT_BINARY_DIR}/sivane-dom.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/sivane-dom.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dom)
endif()

set(SIVANE_PACKAGE_CONTACT "The sivane authors <sivane@sivane.invalid>" CACHE STRING
  "Who answers for the packages: a name and an address")
include(cmake/debian_changelog.cmake)

# sivane_component(COMPONENT PACKAGE DESCRIPTION): the Debian package of a component, with its copyright and changelog.
function(sivane_component component package description)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package} PARENT_SCOPE)
  set(CPACK_COMPONENT_${upper}_DESCRIPTION ${description} PARENT_SCOPE)
  set(documents ${CMAKE_INSTALL_DATADIR}/doc/${package})
  install(FILES LICENSE DESTINATION ${documents} RENAME copyright COMPONENT ${component})
  if(EXISTS ${SIVANE_DEBIAN_CHANGELOG})
    install(FILES ${SIVANE_DEBIAN_CHANGELOG} DESTINATION ${documents} RENAME changelog.gz COMPONENT ${component})
  endif()
endfunction()

set(SIVANE_RUNTIME_PACKAGE libsivane${SIVANE_INTERFACE})
sivane_component(runtime ${SIVANE_RUNTIME_PACKAGE} "The shared library.")
sivane_component(development libsivane-dev "Headers, the CMake package and the pkg-config file.")
set(CPACK_COMPONENTS_ALL runtime development)
if(TARGET sivane_dom)
  sivane_component(dom libsivane-dom-dev "A DOM for hosts without one.")
  list(APPEND CPACK_COMPONENTS_ALL dom)
endif()
if(TARGET sivane-inspect)
  install(TARGETS sivane-inspect RUNTIME COMPONENT inspect)
  if(TARGET sivane_inspect_pages)
    include(cmake/inspect_pages.cmake)
  endif()
  sivane_component(inspect sivane-inspect "The command-line tool that shows what a stream holds.")
  list(APPEND CPACK_COMPONENTS_ALL inspect)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "the sivane authors")
set(CPACK_PACKAGE_CONTACT "${SIVANE_PACKAGE_CONTACT}")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DOM_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_INSPECT_PACKAGE_SECTION utils)
# A host's package asks for a library at least as new as that it was linked with; an older interface has another name.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
file(WRITE ${PROJECT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/triggers)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_INSPECT_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/sivane)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${SIVANE_RUNTIME_PACKAGE} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DOM_PACKAGE_DEPENDS
  "libsivane-dev (= ${PROJECT_VERSION}), libpugixml-dev (>= 1.13), libexpat1-dev")
# Version 0 promises no stable interface, so that tool and library are of the same build.
set(CPACK_DEBIAN_INSPECT_PACKAGE_DEPENDS "${SIVANE_RUNTIME_PACKAGE} (= ${PROJECT_VERSION})")
include(CPack)
