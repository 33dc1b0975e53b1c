# Installs into one prefix, moves it, and looks for what must not be in it.

include(${CMAKE_CURRENT_LIST_DIR}/Prefix.cmake)

unset(ENV{DESTDIR})
file(REMOVE_RECURSE ${first_prefix} ${prefix})
if(EXISTS ${OTHER_BUILD}/cmake_install.cmake)
    execute_process(COMMAND ${CMAKE_COMMAND} --install ${OTHER_BUILD} --prefix ${first_prefix} --strip
        RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
    if(NOT result EQUAL 0)
        message(STATUS "The build for Qt ${OTHER_MAJOR} is not complete: only Qt ${MAJOR} is tested here.")
        file(REMOVE_RECURSE ${first_prefix})
    endif()
endif()
run("Installing" ${CMAKE_COMMAND} --install ${BUILD} --prefix ${first_prefix} --strip)
file(RENAME ${first_prefix} ${prefix})

# Packagers take the parts of an installation by their names.
run("Installing what has no component" ${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK_DIR}/nameless
    --component Unspecified)
file(GLOB_RECURSE nameless RELATIVE ${WORK_DIR}/nameless ${WORK_DIR}/nameless/*)
file(REMOVE_RECURSE ${WORK_DIR}/nameless)
if(nameless)
    message(FATAL_ERROR "Installed under no COMPONENT: ${nameless}")
endif()

# What is installed may not know where it was made.
execute_process(COMMAND grep -rlF -e ${SOURCES} -e ${BUILD} -e ${first_prefix} ${prefix} RESULT_VARIABLE result
    OUTPUT_VARIABLE files)
if(NOT result EQUAL 1)
    message(FATAL_ERROR "These files name a folder of this machine:\n${files}")
endif()
