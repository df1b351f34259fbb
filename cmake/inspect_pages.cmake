# Installs what inspect/ makes of the tool's options: the manual page, compressed as Debian has them, and completions.
set(pages ${PROJECT_BINARY_DIR}/inspect/pages)
if(SIVANE_GZIP)
  install(CODE "execute_process(COMMAND \"${SIVANE_GZIP}\" -9nkf \"${pages}/sivane-inspect.1\" COMMAND_ERROR_IS_FATAL ANY)"
    COMPONENT inspect)
  install(FILES ${pages}/sivane-inspect.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT inspect)
else()
  install(FILES ${pages}/sivane-inspect.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT inspect)
endif()
install(FILES ${pages}/sivane-inspect.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  RENAME sivane-inspect COMPONENT inspect)
install(FILES ${pages}/_sivane-inspect DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions COMPONENT inspect)
install(FILES ${pages}/sivane-inspect.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d
  COMPONENT inspect)
