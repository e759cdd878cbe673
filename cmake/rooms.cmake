# The rooms of the house and what each stands on, from the table that the includes are checked against, too.
set(rooms_table ${CMAKE_SOURCE_DIR}/docs/rooms.tsv)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${rooms_table})

# The rooms from which widgets are seen have the windows' precompiled header and their own moc.
set(rooms_with_widgets "^(ui|window|.*screens)$")

# morvane_room(ROOM FILES...): the static library morvane_ROOM, linked to the libraries of the rooms below.
function(morvane_room room)
    string(REPLACE "/" "_" name morvane_${room})
    add_library(${name} STATIC ${ARGN})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    file(STRINGS ${rooms_table} row REGEX "^${room}\t")
    string(REGEX REPLACE "^[^\t]*\t([^\t]*)\t.*$" "\\1" below "${row}")
    string(REGEX MATCHALL "[a-z/]+" below "${below}")
    foreach(lower IN LISTS below)
        string(REPLACE "/" "_" lower morvane_${lower})
        target_link_libraries(${name} PUBLIC ${lower})
    endforeach()
    target_link_libraries(${name} PUBLIC morvane_options)
    if(room MATCHES "${rooms_with_widgets}")
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
        morvane_precompile(${name} window)
    else()
        morvane_precompile(${name} engine)
    endif()
endfunction()

# morvane_native(TARGET NAMES...): of each matter for which every system has a way of its own, NAME_windows.cpp or
# NAME_posix.cpp.
function(morvane_native target)
    if(WIN32)
        set(system windows)
    else()
        set(system posix)
    endif()
    list(TRANSFORM ARGN REPLACE "(.+)" "\\1_${system}.cpp" OUTPUT_VARIABLE files)
    target_sources(${target} PRIVATE ${files})
endfunction()
