# A room is one folder of src/: one static library, with a QML module where it has QML. What a room
# links is what it may include, so the link lines keep the doors between the rooms one-way.

add_library(kovamo_options INTERFACE)
target_compile_definitions(kovamo_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_FOREACH
                                                    QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER)
target_include_directories(kovamo_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

# kovamo_strict(target): with KOVAMO_WERROR, a warning in the target's own sources is an error; what
# Qt's tools add to the target is generated into the build folder, and nobody here can mend it.
function(kovamo_strict target)
    if(KOVAMO_WERROR)
        get_target_property(sources ${target} SOURCES)
        list(FILTER sources EXCLUDE REGEX "^${PROJECT_BINARY_DIR}/")
        set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS
            "-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow;-Wnon-virtual-dtor;-Werror;$<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>")
    endif()
endfunction()

# kovamo_room(name SOURCES … LINKS …): a room without QML.
function(kovamo_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
    add_library(kovamo_${name} STATIC ${ROOM_SOURCES})
    kovamo_strict(kovamo_${name})
    target_link_libraries(kovamo_${name} PUBLIC kovamo_options ${ROOM_LINKS})
endfunction()

# kovamo_qml_room(name URI Kovamo.Name SOURCES … QML … SINGLETONS … RESOURCES … DEPENDENCIES … LINKS …):
# a room that is a QML module too.
function(kovamo_qml_room name)
    cmake_parse_arguments(ROOM "" "URI" "SOURCES;QML;SINGLETONS;RESOURCES;DEPENDENCIES;LINKS" ${ARGN})
    set_source_files_properties(${ROOM_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
    # A module's files may lie in folders of the room; in the module they lie side by side.
    foreach(file IN LISTS ROOM_QML ROOM_SINGLETONS)
        cmake_path(GET file FILENAME alias)
        set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${alias})
    endforeach()
    qt_add_library(kovamo_${name} STATIC)
    string(REPLACE "." "/" path ${ROOM_URI})
    # Compiled QML starts faster, and takes longer to build than all else together.
    if(CMAKE_BUILD_TYPE STREQUAL "Release")
        set(compiled)
    else()
        set(compiled NO_CACHEGEN)
    endif()
    qt_add_qml_module(kovamo_${name}
        URI ${ROOM_URI}
        VERSION 1.0
        RESOURCE_PREFIX /qt/qml
        OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/qml/${path}
        IMPORT_PATH ${PROJECT_BINARY_DIR}/qml
        ${compiled}
        DEPENDENCIES ${ROOM_DEPENDENCIES}
        SOURCES ${ROOM_SOURCES}
        QML_FILES ${ROOM_QML} ${ROOM_SINGLETONS}
        RESOURCES ${ROOM_RESOURCES})
    kovamo_strict(kovamo_${name})
    # What Qt's compiler makes of QML is compiled as one unit, for nearly all of its time goes to
    # Qt's headers. (A property set on the unit itself makes CMake 3.31 leave the library empty.)
    get_target_property(sources kovamo_${name} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/")
    set_source_files_properties(${sources} PROPERTIES UNITY_GROUP qml)
    set_target_properties(kovamo_${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    # The code that registers the types includes each header by its bare name.
    foreach(file IN LISTS ROOM_SOURCES)
        cmake_path(GET file PARENT_PATH folder)
        target_include_directories(kovamo_${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    endforeach()
    target_link_libraries(kovamo_${name} PUBLIC kovamo_options Qt6::Qml ${ROOM_LINKS})
endfunction()
