# What CPack makes of the tree: a package for Debian 12, which takes its libraries from there, and an archive that brings
# its own and runs wherever it is unpacked.
foreach(plugin platforms/libqxcb platforms/libqoffscreen imageformats/libqgif imageformats/libqico
        imageformats/libqjpeg platforminputcontexts/libcomposeplatforminputcontextplugin
        platforminputcontexts/libibusplatforminputcontextplugin tls/libqopensslbackend)
    list(APPEND bundled_plugins ${plugin}.so)
endforeach()
# The TLS plug-in opens this one by its name.
find_file(TLS_LIBRARY libssl.so.3 PATHS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBS} NO_DEFAULT_PATH)
list(TRANSFORM pilots_programs REPLACE "(.+)" "$<TARGET_FILE:\\1>" OUTPUT_VARIABLE program_files)
configure_file(linux/bundle.cmake.in bundle.cmake.in @ONLY)
file(GENERATE OUTPUT bundle.cmake INPUT ${CMAKE_CURRENT_BINARY_DIR}/bundle.cmake.in)
install(SCRIPT ${CMAKE_CURRENT_BINARY_DIR}/bundle.cmake COMPONENT bundle EXCLUDE_FROM_ALL)
install(FILES linux/qt.conf DESTINATION bin COMPONENT bundle EXCLUDE_FROM_ALL)
install(FILES linux/README DESTINATION . COMPONENT bundle EXCLUDE_FROM_ALL)

# What Debian asks of a package. An address it must have; this one is of the names that no mail ever goes to.
set(packager "The Morvane developers <developers@morvane.invalid>")
configure_file(linux/changelog.in changelog @ONLY)
add_custom_command(OUTPUT changelog.gz COMMAND gzip -9nc changelog > changelog.gz
    DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/changelog VERBATIM)
set(licences ${CMAKE_CURRENT_SOURCE_DIR}/linux/debian_licences ${CMAKE_SOURCE_DIR}/LICENSE ${CMAKE_SOURCE_DIR}/NOTICE)
add_custom_command(OUTPUT copyright COMMAND cat ${licences} > copyright DEPENDS ${licences} VERBATIM)
add_custom_target(morvane_packaged ALL
    DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz ${CMAKE_CURRENT_BINARY_DIR}/copyright morvane_installed)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz ${CMAKE_CURRENT_BINARY_DIR}/copyright
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT debian EXCLUDE_FROM_ALL)

set(CPACK_PACKAGE_NAME morvane)
set(CPACK_PACKAGE_VENDOR "The Morvane developers")
set(CPACK_PACKAGE_CONTACT "${packager}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "textures for Flight Simulator 2004 by the real weather")
set(CPACK_PACKAGE_DESCRIPTION
"Morvane recolours a stock of base images into ground, sky and night texture
sets, reads the hourly METARs, and just before a flight copies into Microsoft
Flight Simulator 2004 the sets that fit the real weather. Every file of the
simulator is kept before it is replaced for the first time, and all of them
are put back on request.
.
The simulator, which is not part of this package, runs under Wine.")
set(CPACK_GENERATOR "DEB;TXZ")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_THREADS 0)
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The reports come over HTTPS.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS ca-certificates)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS wine)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/linux/each_package.cmake)
include(CPack)
