# An application that finds the installation by pkg-config.

cmake_minimum_required(VERSION 3.23)
include(${CMAKE_CURRENT_LIST_DIR}/Prefix.cmake)

foreach(major IN LISTS majors)
    set(module zelcmnctrl03-qt${major})
    set(pkg_config ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${prefix}/${LIBDIR}/pkgconfig pkg-config ${module})
    execute_process(COMMAND ${pkg_config} --cflags --libs RESULT_VARIABLE result OUTPUT_VARIABLE flags
        ERROR_VARIABLE errors)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "pkg-config does not find ${module}: ${errors}")
    endif()
    separate_arguments(flags UNIX_COMMAND "${flags}")
    execute_process(COMMAND ${pkg_config} --variable=translationsdir OUTPUT_VARIABLE translations_dir
        OUTPUT_STRIP_TRAILING_WHITESPACE)
    execute_process(COMMAND ${pkg_config} --variable=libdir OUTPUT_VARIABLE library_dir OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(program ${WORK_DIR}/${module})
    # Qt wants -fPIC of its applications. CMake's packages say so, Qt 5's modules of pkg-config do not.
    run("Building" ${COMPILER} -std=c++17 -fPIC ${SOURCES}/tests/consumer/main.cpp -o ${program} ${flags}
        -Wl,-rpath,${library_dir} -DTRANSLATIONS_DIR="${translations_dir}")
    run_consumer(${program} ${major})
endforeach()
