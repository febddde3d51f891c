# dark_pictures(variable name …): makes of each picture in pictures/ the one that the dark appearance
# shows, by exchanging the colours of its palette, and lists the files in the variable. A picture
# uses no other colours than these and "white", which stays white.
function(dark_pictures variable)
    set(palette
        "#F2F2F7>#000000" "#FFFFFF>#1C1C1E" "#1C1C1E>#FFFFFF" "#D9D9E0>#3A3A3C" "#8E8E93>#98989F"
        "#FFCC00>#FFD60A" "#34C759>#30D158" "#FF3B30>#FF453A" "#007AFF>#0A84FF" "#AF52DE>#BF5AF2")
    foreach(name ${ARGN})
        set(picture ${CMAKE_CURRENT_SOURCE_DIR}/pictures/${name}.svg)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${picture})
        file(READ ${picture} drawing)
        # By way of a mark, so that no colour is exchanged twice.
        foreach(pair ${palette})
            string(REGEX MATCH "^#(.*)>#(.*)$" pair ${pair})
            string(REPLACE "#${CMAKE_MATCH_1}" "@${CMAKE_MATCH_2}" drawing "${drawing}")
        endforeach()
        string(REGEX REPLACE "@([0-9A-F]+)" "#\\1" drawing "${drawing}")
        set(dark ${CMAKE_CURRENT_BINARY_DIR}/dark/${name}.svg)
        file(WRITE ${dark} "${drawing}")
        set_source_files_properties(${dark} PROPERTIES QT_RESOURCE_ALIAS pictures/dark/${name}.svg)
        list(APPEND files ${dark})
    endforeach()
    set(${variable} ${files} PARENT_SCOPE)
endfunction()
