# One folder that runs wherever it lies: programs, the toolkit's libraries and plug-ins, the compiler's three, data,
# licences.
get_target_property(qt_core Qt6::Core IMPORTED_LOCATION_RELEASE)
cmake_path(GET qt_core PARENT_PATH qt_programs)
cmake_path(GET qt_programs PARENT_PATH qt_folder)

install(TARGETS morvane morvane-cli morvane-content RUNTIME DESTINATION .)
foreach(part Core Gui Network Widgets)
    install(FILES ${qt_programs}/Qt6${part}.dll DESTINATION .)
endforeach()
install(FILES ${qt_folder}/plugins/platforms/qwindows.dll ${qt_folder}/plugins/platforms/qoffscreen.dll
    DESTINATION platforms)
foreach(format gif ico jpeg)
    install(FILES ${qt_folder}/plugins/imageformats/q${format}.dll DESTINATION imageformats)
endforeach()
install(FILES ${qt_folder}/plugins/styles/qwindowsvistastyle.dll DESTINATION styles)
install(FILES ${qt_folder}/plugins/tls/qschannelbackend.dll DESTINATION tls)

foreach(library libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}.dll
        OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${file}")
        find_file(file_${library} ${library}.dll PATH_SUFFIXES lib bin REQUIRED)
        set(file ${file_${library}})
    endif()
    install(FILES ${file} DESTINATION .)
endforeach()

install_data(data)
install(FILES ${CMAKE_SOURCE_DIR}/LICENSE ${CMAKE_SOURCE_DIR}/NOTICE DESTINATION licences)
install(FILES /usr/share/common-licenses/Apache-2.0 DESTINATION licences RENAME font-license.txt OPTIONAL)
foreach(license LGPL-3 GPL-3)
    install(FILES /usr/share/common-licenses/${license} DESTINATION licences RENAME ${license}.txt OPTIONAL)
endforeach()
