# Where everything goes: `cmake --install`, and the Debian package that tools/package makes.
include(GNUInstallDirs)

if(APPLE)
  # Untested: nobody has built this on a Mac yet.
  set(icon ${PROJECT_SOURCE_DIR}/packaging/mardel.icns)
  target_sources(mardel PRIVATE ${icon})
  set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  set_target_properties(mardel PROPERTIES
    MACOSX_BUNDLE ON OUTPUT_NAME Mardel
    MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/packaging/Info.plist.in)
  install(TARGETS mardel BUNDLE DESTINATION .)
  return()
endif()

if(WIN32)
  # Untested: nobody has built this on Windows yet.
  enable_language(RC)
  target_sources(mardel PRIVATE packaging/mardel.rc)
  install(TARGETS mardel)
  return()
endif()

# Debian wants these compressed, without name and time, so that they are the same each time.
function(mardel_install_compressed source name folder)
  set(compressed ${PROJECT_BINARY_DIR}/share/${name}.gz)
  add_custom_command(
    OUTPUT ${compressed}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/share
    COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/${source} > ${compressed}
    DEPENDS ${PROJECT_SOURCE_DIR}/${source} VERBATIM)
  add_custom_target(compressed_${name} ALL DEPENDS ${compressed})
  install(FILES ${compressed} DESTINATION ${folder})
endfunction()

install(TARGETS mardel)
foreach(folder applications bash-completion icons metainfo mime)
  install(DIRECTORY share/${folder} DESTINATION ${CMAKE_INSTALL_DATADIR})
endforeach()
mardel_install_compressed(share/man/man1/mardel.1 mardel.1 ${CMAKE_INSTALL_MANDIR}/man1)
mardel_install_compressed(packaging/debian/changelog changelog.Debian
                          ${CMAKE_INSTALL_DATADIR}/doc/mardel)
install(FILES packaging/debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/mardel)
install(FILES packaging/debian/lintian-overrides
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME mardel)
install(DIRECTORY samples/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/mardel/examples
        PATTERN README.md EXCLUDE)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME mardel)
set(CPACK_PACKAGE_VENDOR Quillonworks)
set(CPACK_PACKAGE_CONTACT "Quillonworks <mardel@quillonworks.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "block diagrams for the Dravik audio signal processor")
set(CPACK_PACKAGE_DESCRIPTION
    "Mardel is a design environment for the Dravik, a small audio signal
processor chip. Effects are built from blocks of libraries, whose pins are
joined by nets on a canvas.

It resolves the nets into chip registers, writes the source of the program,
and runs the chip maker's preprocessor and assembler, which are not part of
this package. The same work, checks of designs and pictures of them are to
be had without a window.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
                                                GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
# The libraries are found by the linker's names; fonts, of the canvas and of
# the menus, by none.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, fonts-dejavu-core | fonts-noto-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
include(CPack)
