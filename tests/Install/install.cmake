# Installs into one prefix, moves it, and looks for what must not be in it.

cmake_minimum_required(VERSION 3.23)
include(${CMAKE_CURRENT_LIST_DIR}/Prefix.cmake)

# is_newer(RESULT FILE SOURCE...): whether the file is there and newer than all of these.
function(is_newer result file)
    set(${result} TRUE PARENT_SCOPE)
    foreach(source IN LISTS ARGN)
        if(NOT EXISTS ${file} OR ${source} IS_NEWER_THAN ${file})
            set(${result} FALSE PARENT_SCOPE)
        endif()
    endforeach()
endfunction()

# find_recipe(RESULT FILE): the sources that this build.ninja was made of. Not all of cmake/ is: only packages read some.
function(find_recipe result file)
    set(rule)
    if(EXISTS ${file})
        file(STRINGS ${file} rule REGEX "^build build\\.ninja[ :]")
    endif()
    string(REGEX MATCHALL "${SOURCES}/[^ ]+" files "${rule}")
    list(FILTER files EXCLUDE REGEX "^${OTHER_BUILD}/")
    set(${result} ${files} PARENT_SCOPE)
endfunction()

unset(ENV{DESTDIR})
file(REMOVE_RECURSE ${first_prefix} ${prefix})
# An old build for the other Qt would say nothing about these sources.
find_recipe(recipe ${OTHER_BUILD}/build.ninja)
file(GLOB_RECURSE sources ${SOURCES}/ZelCmnCtrl03/*.h)
is_newer(is_configured ${OTHER_BUILD}/build.ninja ${SOURCES}/CMakeLists.txt ${recipe})
is_newer(is_built ${OTHER_BUILD}/${LIBDIR}/libZelCmnCtrl03Qt${OTHER_MAJOR}.so ${sources})
if(is_configured AND is_built)
    run("Installing for Qt ${OTHER_MAJOR}" ${CMAKE_COMMAND} --install ${OTHER_BUILD} --prefix ${first_prefix} --strip)
else()
    message(STATUS "There is no new build for Qt ${OTHER_MAJOR}: only Qt ${MAJOR} is tested here.")
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
