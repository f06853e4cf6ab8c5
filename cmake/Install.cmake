# What is installed where, and the Debian package made of it (cpack -G DEB in the build folder).
set(CMAKE_INSTALL_DOCDIR "${CMAKE_INSTALL_DATADIR}/doc/quillomat")

set(linux "${PROJECT_SOURCE_DIR}/packaging/linux")

# quillomat_install_compressed(file folder [name]): with gzip, as Debian wants manuals and changelogs.
function(quillomat_install_compressed file folder)
  get_filename_component(name "${file}" NAME)
  if(ARGC GREATER 2)
    set(name "${ARGV2}")
  endif()
  set(compressed "${PROJECT_BINARY_DIR}/compressed/${name}.gz")
  file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/compressed")
  add_custom_command(OUTPUT "${compressed}" COMMAND gzip -9nc "${file}" > "${compressed}" VERBATIM
                     DEPENDS "${file}")
  add_custom_target(compressed_${name} ALL DEPENDS "${compressed}")
  install(FILES "${compressed}" DESTINATION "${folder}")
endfunction()

install(TARGETS quillomat-cli RUNTIME)
install(FILES data/qlav_text.dat data/cwds_cs.txt data/cwds_de.txt data/cwds_el.txt
              data/cwds_en.txt data/cwds_es.txt data/cwds_fr.txt data/cwds_it.txt data/cwds_nl.txt
              data/cwds_pl.txt data/cwds_pt.txt data/cwds_ru.txt data/cwds_sv.txt data/cwds_tr.txt
              data/cwds_uk.txt
        DESTINATION "${CMAKE_INSTALL_DATADIR}/quillomat")
install(FILES README.md "${linux}/debian/copyright" DESTINATION "${CMAKE_INSTALL_DOCDIR}")

if(NOT CMAKE_CROSSCOMPILING)
  configure_file("${linux}/debian/changelog.in" "${PROJECT_BINARY_DIR}/changelog" @ONLY)
  quillomat_install_compressed("${PROJECT_BINARY_DIR}/changelog" "${CMAKE_INSTALL_DOCDIR}")
  quillomat_install_compressed("${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${CMAKE_INSTALL_DOCDIR}")
  set(manual "${PROJECT_BINARY_DIR}/manual")
  quillomat_install_compressed("${manual}/man/quillomat-cli.1" "${CMAKE_INSTALL_MANDIR}/man1")
  add_dependencies(compressed_quillomat-cli.1 quillomat_manual_pages)
  install(FILES "${manual}/bash/quillomat-cli"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
  install(FILES "${manual}/zsh/_quillomat-cli"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions")
  install(FILES "${manual}/fish/quillomat-cli.fish"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
endif()

if(QUILLOMAT_BUILD_WINDOWS)
  install(TARGETS quillomat RUNTIME)
  install(FILES "${linux}/quillomat.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES packaging/quillomat.svg
          DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
  if(NOT CMAKE_CROSSCOMPILING)
    set(metainfo example.quillomat.Quillomat.metainfo.xml)
    configure_file("${linux}/${metainfo}.in" "${PROJECT_BINARY_DIR}/${metainfo}" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${metainfo}"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
    quillomat_install_compressed("${linux}/quillomat.1" "${CMAKE_INSTALL_MANDIR}/man1")
  endif()
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
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What workbooks are written with is loaded when there is one to write, so nobody else sees it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${QUILLOMAT_XLSXWRITER_PACKAGE}")
# ICU is loaded when a text needs it; the version is that of the headers (src/system).
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libicu${QUILLOMAT_ICU_VERSION}, qt6-translations-l10n, xdg-utils")
include(CPack)
