# An application that finds the installation by CMake.

cmake_minimum_required(VERSION 3.23)
include(${CMAKE_CURRENT_LIST_DIR}/Prefix.cmake)

set(configure ${CMAKE_COMMAND} -S ${SOURCES}/tests/consumer -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${prefix}
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${COMPILER_LAUNCHER}
    -DCMAKE_FIND_PACKAGE_NO_PACKAGE_REGISTRY=ON -DHEADERS=${HEADERS})

foreach(major IN LISTS majors)
    set(build ${WORK_DIR}/consumer-qt${major})
    file(REMOVE_RECURSE ${build})
    run("Configuring" ${configure} -B ${build} -DQT_MAJORS=${major})
    # The headers of the other Qt are its own build's affair.
    if(major EQUAL MAJOR)
        run("Building" ${CMAKE_COMMAND} --build ${build})
    else()
        run("Building" ${CMAKE_COMMAND} --build ${build} --target consumer)
    endif()
    run_consumer(${build}/consumer ${major})
endforeach()

if(NOT OTHER_MAJOR IN_LIST majors)
    return()
endif()
file(REMOVE_RECURSE ${WORK_DIR}/consumer-of-both)
execute_process(COMMAND ${configure} -B ${WORK_DIR}/consumer-of-both "-DQT_MAJORS=${MAJOR};${OTHER_MAJOR}"
    RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
string(REGEX REPLACE "[ \n]+" " " errors "${errors}")
if(result EQUAL 0 OR NOT errors MATCHES "a program cannot use two versions of Qt")
    message(FATAL_ERROR "An application that asks for both versions of Qt is not told that this cannot be: ${errors}")
endif()
