# Writes METAINFO, what software centres tell of Kovamo. They take pictures from a web address only:
# for the address KOVAMO_SCREENSHOTS, those that scripts/pictures draws are listed as lying there.
function(write_metainfo)
    file(READ ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/org.kovamo.Kovamo.metainfo.xml text)
    set(screenshots)
    set(type " type=\"default\"")
    set(captions
        current-month "The balance of the month and what it is made of"
        twelve-months "The balance of twelve months"
        new-transaction "The form for a new transaction"
        transactions "All transactions, to search and to change")
    while(captions)
        list(POP_FRONT captions picture caption)
        foreach(appearance light dark)
            string(APPEND screenshots "    <screenshot${type}>\n"
                "      <caption>${caption}, ${appearance}</caption>\n"
                "      <image type=\"source\" width=\"390\" height=\"844\">"
                "${KOVAMO_SCREENSHOTS}/${picture}-390x844-${appearance}.png</image>\n"
                "    </screenshot>\n")
            set(type)
        endforeach()
    endwhile()
    if(KOVAMO_SCREENSHOTS)
        string(REPLACE "  <content_rating"
            "  <screenshots>\n${screenshots}  </screenshots>\n  <content_rating" text "${text}")
    endif()
    file(WRITE ${METAINFO} "${text}")
endfunction()
write_metainfo()
