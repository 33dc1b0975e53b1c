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

# run_consumer(PROGRAM MAJOR): with nothing of this build in sight.
function(run_consumer program major)
    run("${program}" ${CMAKE_COMMAND} -E env --unset=ZEL_GRAPHICS_DIR --unset=LD_LIBRARY_PATH ${ARGN}
        QT_PLUGIN_PATH=${prefix}/${LIBDIR}/qt${major}/plugins ${program})
endfunction()
