# The programs of the installation do their work there: they find libraries and artwork beside them.

cmake_minimum_required(VERSION 3.23)
include(${CMAKE_CURRENT_LIST_DIR}/Prefix.cmake)

set(artwork ${prefix}/${ARTWORK})
set(output ${WORK_DIR}/programs)
string(REPLACE "," ";" programs ${PROGRAMS})
file(REMOVE_RECURSE ${output})

run_alone("lookcheck" ${MAJOR} ${prefix}/${BINDIR}/lookcheck ${artwork})
if(zel_gallery IN_LIST programs)
    run_alone("zel_gallery" ${MAJOR} ${prefix}/${BINDIR}/zel_gallery --page buttons --shots ${output})
    if(NOT EXISTS ${output}/buttons.png)
        message(FATAL_ERROR "zel_gallery has made no picture.")
    endif()
endif()

# A manual page may say more than the help, but not leave an option out.
foreach(program IN LISTS programs)
    execute_process(COMMAND ${prefix}/${BINDIR}/${program} --help OUTPUT_VARIABLE help ERROR_QUIET)
    string(REGEX MATCHALL "\n +[^\n]*--[a-z-]+" lines "${help}")
    file(READ ${prefix}/${MANDIR}/man1/${program}.1 page)
    string(REPLACE "\\-" "-" page "${page}")
    foreach(line IN LISTS lines)
        string(REGEX MATCH "--[a-z-]+" option "${line}")
        if(NOT page MATCHES "${option}")
            message(FATAL_ERROR "The manual page of ${program} does not know ${option}.")
        endif()
    endforeach()
    if(NOT lines)
        message(FATAL_ERROR "${program} --help has no options.")
    endif()
endforeach()
