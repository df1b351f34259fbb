# The Debian package python3-sivane (component python), for the interpreter that the module was built for.
set(folder lib/python3/dist-packages/sivane)
install(TARGETS sivane_python LIBRARY DESTINATION ${folder} COMPONENT python)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/python/sivane/ DESTINATION ${folder} COMPONENT python
  FILES_MATCHING PATTERN *.py PATTERN *.pyi PATTERN py.typed PATTERN __pycache__ EXCLUDE)

set(Python3_EXECUTABLE ${SIVANE_PYTHON})
find_package(Python3 REQUIRED COMPONENTS Interpreter)
math(EXPR next_minor "${Python3_VERSION_MINOR} + 1")
sivane_package(python python3-sivane python
  "The module for Python, and the catalogue of archives of recordings."
  "python3 (>= 3.${Python3_VERSION_MINOR})" "python3 (<< 3.${next_minor})"
  "${SIVANE_RUNTIME_PACKAGE} (= ${PROJECT_VERSION})" "libsivane-charset${SIVANE_INTERFACE} (= ${PROJECT_VERSION})"
  "libsivane-catalogue${SIVANE_INTERFACE} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PYTHON_PACKAGE_RECOMMENDS "python3-distributed, python3-pandas")
set(CPACK_DEBIAN_PYTHON_PACKAGE_SHLIBDEPS ON)

# The compiled form of the sources is made where the package is installed, and goes with it.
file(WRITE ${PROJECT_BINARY_DIR}/python/debian/postinst
  "#!/bin/sh\nset -e\nif command -v py3compile > /dev/null; then py3compile -p python3-sivane; fi\n")
file(WRITE ${PROJECT_BINARY_DIR}/python/debian/prerm
  "#!/bin/sh\nset -e\nif command -v py3clean > /dev/null; then py3clean -p python3-sivane; fi\n")
file(CHMOD ${PROJECT_BINARY_DIR}/python/debian/postinst ${PROJECT_BINARY_DIR}/python/debian/prerm
  PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
  ${PROJECT_BINARY_DIR}/python/debian/postinst ${PROJECT_BINARY_DIR}/python/debian/prerm)
