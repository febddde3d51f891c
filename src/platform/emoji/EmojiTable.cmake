# emoji_table(variable): writes the table of the panel's emoji and sets the variable to its path. A
# line "# title TAB symbol" begins a category, a line "emoji TAB name TAB further words" follows for
# each of its emoji. Names and order are Unicode's own; the first category is everyday.txt.
function(emoji_table variable)
    set(everyday ${CMAKE_CURRENT_SOURCE_DIR}/everyday.txt)
    find_file(KOVAMO_EMOJI_DATA unicode/emoji/emoji-test.txt PATHS /usr/share REQUIRED)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${KOVAMO_EMOJI_DATA} ${everyday})

    # Title, symbol, and the subgroups that a category is made of.
    set(categories
        "Food & Drink|🍔|food-.*|drink|dishware"
        "Objects|👓|clothing|music|musical-instrument|phone|computer|light & video|book-paper|money|tool|medical|household"
        "Travel & Places|🚗|transport-ground|transport-water|transport-air|hotel|place-building|place-geographic|place-other"
        "Activities|⚽|event|award-medal|sport|game|arts & crafts|person-sport|person-activity|person-resting"
        "People|🧑|person|person-role"
        "Animals & Nature|🐻|animal-mammal|animal-bird|animal-marine|plant-flower|plant-other"
        "Smileys|😀|face-smiling|face-affection|face-tongue|face-hat|face-glasses|face-unwell|heart"
        "Symbols|♻️|currency|math|punctuation|other-symbol")
    foreach(category ${categories})
        string(REPLACE "|" ";" fields "${category}")
        list(GET fields 0 1 head)
        list(JOIN head "\t" head)
        list(SUBLIST fields 2 -1 subgroups)
        list(JOIN subgroups "|" subgroups_${head})
        list(APPEND heads "${head}")
    endforeach()

    file(STRINGS ${KOVAMO_EMOJI_DATA} lines ENCODING UTF-8 REGEX "^# subgroup|; fully-qualified")
    # Skin tones, families and what tells a woman from a man are left to those who type them.
    list(FILTER lines EXCLUDE REGEX "1F3F[B-F]|200D 264[02]|^1F46[89] 200D")
    foreach(line ${lines})
        if(line MATCHES "^# subgroup: (.*)$")
            set(subgroup ${CMAKE_MATCH_1})
            set(group "")
            foreach(head ${heads})
                if(subgroup MATCHES "^(${subgroups_${head}})$")
                    set(group "${head}")
                endif()
            endforeach()
        elseif(line MATCHES "# ([^ ]+) E[0-9.]+ (.+)$")
            set(name_${CMAKE_MATCH_1} "${CMAKE_MATCH_2}")
            string(APPEND emoji_${group} "${CMAKE_MATCH_1}\t${CMAKE_MATCH_2}\n")
        endif()
    endforeach()

    set(table "# Everyday\t💰\n")
    file(STRINGS ${everyday} lines ENCODING UTF-8)
    foreach(line ${lines})
        string(REGEX MATCH "^([^ ]+) (.*)$" line "${line}")
        if(NOT name_${CMAKE_MATCH_1})
            message(FATAL_ERROR "No emoji of Unicode's: ${CMAKE_MATCH_1}")
        endif()
        string(APPEND table "${CMAKE_MATCH_1}\t${name_${CMAKE_MATCH_1}}\t${CMAKE_MATCH_2}\n")
    endforeach()
    foreach(head ${heads})
        string(APPEND table "# ${head}\n${emoji_${head}}")
    endforeach()
    set(path ${CMAKE_CURRENT_BINARY_DIR}/emoji.txt)
    file(CONFIGURE OUTPUT ${path} CONTENT "${table}" @ONLY)
    set_source_files_properties(${path} PROPERTIES QT_RESOURCE_ALIAS emoji.txt)
    set(${variable} ${path} PARENT_SCOPE)
endfunction()
