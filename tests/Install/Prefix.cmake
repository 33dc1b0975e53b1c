# What the scripts here share: where the installation is, and how programs are run.

set(first_prefix ${WORK_DIR}/first)
set(prefix ${WORK_DIR}/moved)

# run(WHAT COMMAND...): ends the test with the program's output where it fails.
function(run what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${what} failed:\n${output}")
    endif()
endfunction()

# The Qt majors that are installed; the one of this build is, or the test has failed before.
set(majors)
foreach(major ${MAJOR} ${OTHER_MAJOR})
    if(EXISTS ${prefix}/${LIBDIR}/cmake/ZelCmnCtrl03Qt${major})
        list(APPEND majors ${major})
    endif()
endforeach()

# run_alone(WHAT MAJOR COMMAND...): with nothing of this build in sight.
function(run_alone what major)
    run("${what}" ${CMAKE_COMMAND} -E env --unset=ZEL_GRAPHICS_DIR --unset=LD_LIBRARY_PATH
        QT_PLUGIN_PATH=${prefix}/${LIBDIR}/qt${major}/plugins ${ARGN})
endfunction()

# run_consumer(PROGRAM MAJOR): which loads each plugin that the build for this Qt has made.
function(run_consumer program major)
    set(build ${BUILD})
    if(NOT major EQUAL MAJOR)
        set(build ${OTHER_BUILD})
    endif()
    set(plugins_dir ${LIBDIR}/qt${major}/plugins)
    file(GLOB plugins RELATIVE ${build} ${build}/${plugins_dir}/*/*.so)
    list(TRANSFORM plugins PREPEND ${prefix}/)
    if(NOT plugins)
        message(FATAL_ERROR "${build} has no plugins.")
    endif()
    run_alone("${program}" ${major} ${program} ${plugins})
endfunction()
