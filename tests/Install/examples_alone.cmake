# The examples, copied out of this project as a newcomer does, and built upon the installation.

cmake_minimum_required(VERSION 3.23)
include(${CMAKE_CURRENT_LIST_DIR}/Prefix.cmake)

foreach(name minimal form)
    set(copy ${WORK_DIR}/examples/${name})
    file(REMOVE_RECURSE ${copy})
    file(COPY ${SOURCES}/examples/${name} DESTINATION ${WORK_DIR}/examples)
    run("Configuring ${name}" ${CMAKE_COMMAND} -S ${copy} -B ${copy}/build -G ${GENERATOR} -DZEL_QT_MAJOR=${MAJOR}
        -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${COMPILER_LAUNCHER}
        -DCMAKE_FIND_PACKAGE_NO_PACKAGE_REGISTRY=ON)
    run("Building ${name}" ${CMAKE_COMMAND} --build ${copy}/build)
endforeach()

if(NOT EXISTS ${WORK_DIR}/examples/minimal/build/share/zelcmnctrl03/translations/zelcmnctrl03_en.qm)
    message(FATAL_ERROR "The smallest application has no texts.")
endif()
