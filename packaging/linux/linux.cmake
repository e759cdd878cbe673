# The tree of a Linux system: programs, their data, manual pages and what a desktop shows of them. It may be moved as a
# whole: the programs find their data, and libraries of their own where there are some, from where they lie.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/morvane)
set(pilots_programs morvane morvane-cli morvane-content)
set(own_libraries lib/morvane)
set(component_id com.orrinsoft.morvane)

# The older kind of search path counts for what the libraries themselves need, too.
set_target_properties(${pilots_programs} PROPERTIES INSTALL_RPATH "$ORIGIN/../${own_libraries}")
foreach(program IN LISTS pilots_programs)
    target_link_options(${program} PRIVATE -Wl,--disable-new-dtags)
endforeach()
install(TARGETS ${pilots_programs} RUNTIME DESTINATION bin)
install_data(${CMAKE_INSTALL_DATADIR}/morvane/data)

# Of the pages, the metadata and the changelog: the day of this version, whose number stands in CMakeLists.txt.
set(MORVANE_DATE 2026-11-22)
set(MORVANE_CHANGE_DATE "Sun, 22 Nov 2026 00:00:00 +0000")
foreach(page morvane morvane-content)
    configure_file(linux/${page}.1.in ${page}.1 @ONLY)
endforeach()
configure_file(linux/metainfo.xml.in ${component_id}.metainfo.xml @ONLY)
add_custom_command(
    OUTPUT morvane-cli.1
    COMMAND morvane-manual ${MORVANE_DATE} > morvane-cli.1
    DEPENDS morvane-manual
    VERBATIM
)
foreach(page morvane morvane-cli morvane-content)
    add_custom_command(OUTPUT ${page}.1.gz COMMAND gzip -9nc ${page}.1 > ${page}.1.gz
        DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${page}.1 VERBATIM)
    list(APPEND drawn_files ${CMAKE_CURRENT_BINARY_DIR}/${page}.1.gz)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${page}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()

# The icon is drawn as the rest of the skin is.
set(icon ${CMAKE_CURRENT_BINARY_DIR}/morvane.png)
add_custom_command(OUTPUT ${icon} COMMAND morvane-content --icon ${icon} DEPENDS morvane-content)
install(FILES ${icon} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/128x128/apps)
install(FILES linux/morvane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES linux/morvane.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${component_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# The licences of what is in the programs go along with them.
install(FILES ${CMAKE_SOURCE_DIR}/LICENSE ${CMAKE_SOURCE_DIR}/NOTICE ${CMAKE_SOURCE_DIR}/CHANGELOG.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES /usr/share/common-licenses/Apache-2.0 DESTINATION ${CMAKE_INSTALL_DOCDIR}
    RENAME font-license.txt OPTIONAL)

add_custom_target(morvane_installed ALL DEPENDS ${icon} ${drawn_files} ${pilots_programs})
add_test(NAME installed_tree
    COMMAND ${CMAKE_COMMAND} -DBUILD=${CMAKE_BINARY_DIR} -P ${CMAKE_SOURCE_DIR}/tests/linux/installed_tree.cmake)
