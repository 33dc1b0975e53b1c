# The programs of the installation do their work there: they find libraries, artwork and each other beside them.

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
