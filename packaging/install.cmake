# Where everything goes by `cmake --install`, which debian/ makes the package with.
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

install(TARGETS mardel)
install(DIRECTORY share/ DESTINATION ${CMAKE_INSTALL_DATADIR})
install(DIRECTORY samples DESTINATION ${CMAKE_INSTALL_DATADIR}/mardel PATTERN README.md EXCLUDE)
