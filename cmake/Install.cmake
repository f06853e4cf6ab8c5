# What is installed where, and the Debian package made of it (cpack -G DEB in the build folder).
set(CMAKE_INSTALL_DOCDIR "share/doc/quillomat")
include(GNUInstallDirs)

install(TARGETS quillomat-cli RUNTIME)
install(FILES data/qlav_text.dat data/cwds_de.txt data/cwds_en.txt data/cwds_es.txt
              data/cwds_fr.txt data/cwds_it.txt data/cwds_pt.txt
        DESTINATION "${CMAKE_INSTALL_DATADIR}/quillomat")
install(FILES README.md CHANGELOG.md LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}")
if(QUILLOMAT_BUILD_WINDOWS)
  install(TARGETS quillomat RUNTIME)
  install(FILES packaging/linux/quillomat.desktop
          DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES packaging/quillomat.svg
          DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillomat)
set(CPACK_PACKAGE_VENDOR "Orvandel Systems")
set(CPACK_PACKAGE_CONTACT "Orvandel Systems <packages@quillomat.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://quillomat.example/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "word-frequency counter")
set(CPACK_PACKAGE_DESCRIPTION
    "Splits the text of the clipboard, a file or a folder into words under rules\n\
of your choice, counts them, and lists them in two orders and fourteen formats.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, xdg-utils")
include(CPack)
