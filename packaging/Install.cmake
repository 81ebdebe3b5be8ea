# What an installation holds, and the Debian package made of it.
include(GNUInstallDirs)

set(ORVANE_PROGRAMS)
foreach(program orvane orvane-simulator orvane-console)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    list(APPEND ORVANE_PROGRAMS ${program})
  endif()
endforeach()

# Where `orvane` looks for it.
install(TARGETS orvane-pictures LIBRARY DESTINATION lib/orvane)

if(TARGET orvane-console)
  install(FILES packaging/orvane-console.desktop
          DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES packaging/org.orvane.console.metainfo.xml
          DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES packaging/orvane-console.svg
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()

# The device manager looks into lib/udev below /usr and /usr/local alike, and not into lib64.
install(FILES packaging/70-orvane-console.rules DESTINATION lib/udev/rules.d)

# The starter limits, for those who copy them by hand; the program has them built in.
install(DIRECTORY share/orvane DESTINATION ${CMAKE_INSTALL_DATADIR})

set(ORVANE_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/orvane-console)
install(DIRECTORY docs/ DESTINATION ${ORVANE_DOCDIR})
if(EXISTS ${CMAKE_SOURCE_DIR}/README.md)
  install(FILES README.md DESTINATION ${ORVANE_DOCDIR})
endif()

file(GLOB manual_pages CONFIGURE_DEPENDS packaging/man/*.1)
if(manual_pages)
  install(FILES ${manual_pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvane-console)
set(CPACK_PACKAGE_CONTACT "Orvane Console maintainers <maintainers@orvane.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Control and evaluation console for EMI test receivers")
set(CPACK_PACKAGE_DESCRIPTION
    "Sets up and runs conducted and radiated emission measurements, compares them with limits,
keeps them in an archive, and issues the reports: with windows, or from the command line.
A simulated receiver is part of it.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "udev, fonts-inter, fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "bluez")
# The libraries that the programs were linked against, as the packaging tools find them.
find_program(DPKG_SHLIBDEPS dpkg-shlibdeps)
if(DPKG_SHLIBDEPS AND ORVANE_PROGRAMS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
endif()
include(CPack)
