# What Windows shows and asks of a program before it starts: version, icon, manifest (no administrator, long paths,
# UTF-8, Windows 10 and 11).

# An icon drawn by a native content tool; without one the programs have none.
set(MORVANE_ICON "" CACHE FILEPATH "The programs' icon (.ico), for Windows")
if(WIN32)
    enable_language(RC)
endif()

# morvane_windows_resources(PROGRAM DESCRIPTION)
function(morvane_windows_resources program description)
    if(NOT WIN32)
        return()
    endif()
    set(MORVANE_PROGRAM ${program})
    set(MORVANE_DESCRIPTION ${description})
    set(MORVANE_MANIFEST ${CMAKE_SOURCE_DIR}/cmake/windows/program.manifest)
    set(MORVANE_ICON_LINE "")
    if(MORVANE_ICON)
        set(MORVANE_ICON_LINE "IDI_ICON1 ICON \"${MORVANE_ICON}\"")
    endif()
    configure_file(${CMAKE_SOURCE_DIR}/cmake/windows/program.rc.in ${program}.rc @ONLY)
    target_sources(${program} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
endfunction()
